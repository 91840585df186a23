<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="cutting.name">
        <source></source>
        <translation>Cutting</translation>
    </message>
    <message id="cutting.option">
        <source></source>
        <translation>Cut</translation>
    </message>
    <message id="cutting.refused">
        <source></source>
        <translation>The dialog does not take the choice.</translation>
    </message>
</context>
</TS>
