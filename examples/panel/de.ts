<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="cutting.name">
        <source></source>
        <translation>Schneiden</translation>
    </message>
    <message id="cutting.option">
        <source></source>
        <translation>Schnitt</translation>
    </message>
    <message id="cutting.refused">
        <source></source>
        <translation>Der Dialog nimmt die Auswahl nicht an.</translation>
    </message>
</context>
</TS>
