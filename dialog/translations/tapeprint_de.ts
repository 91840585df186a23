<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>das Programm endete, während dieses Plug-in startete; beim nächsten Mal wird es wieder versucht</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>das Programm endete, während dieses Plug-in startete, und beim nächsten Mal wieder; es wird erst wieder versucht, wenn sich das Bundle geändert hat</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>sein Code kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>sein Code ist nicht, was seine Metadaten sagen</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>die Hauptklasse %1 fehlt</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>es kann auf diesem System nicht arbeiten</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>es ist beim Starten gescheitert: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>es ist beim Starten gescheitert</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>Die Beschreibung des Druckers verlangt das Plug-in %1, das nicht installiert ist. Gedruckt werden kann auch ohne es.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>Das Plug-in %1 wird anstelle von %2 verwendet.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Das Plug-in %1 wird nicht verwendet: %2. Gedruckt werden kann auch ohne es. Aktualisieren oder entfernen Sie das Bundle.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 gehört jemand anderem</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>in %1 darf jeder schreiben</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>es ist für eine andere Bereichsschnittstelle gemacht (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>es ist für eine spätere Fassung der Bereichsschnittstelle gemacht (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>die Datei %1 fehlt</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>sein Code ist kein Plug-in, das dieses Qt laden kann</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>seine Metadaten nennen keine Hauptklasse</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>es bietet keine Bereiche für Drucker</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>ein anderes Programm wartet seit einer Minute oder länger auf dieses Plug-in</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Keine Seite gewählt</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Wird gezählt …</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Menge unbekannt</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>Das ist eine ungewöhnliche Menge: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>%n Etikett drucken</numerusform>
            <numerusform>%n Etiketten drucken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>%n Blatt drucken</numerusform>
            <numerusform>%n Blätter drucken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Eigener Wert …</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Lö&amp;sen</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Lösen: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Wählen Sie für eines davon etwas anderes.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomFields</name>
    <message>
        <source>%1:</source>
        <comment>name of a value</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a value, and what is wrong with it</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomSizeSheet</name>
    <message>
        <source>Custom Size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Neue Größe</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>&amp;Gemerkt:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Zum Merken</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;ame:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Seiten so schreiben: 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Ungerade und gerade</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Nur ungerade</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Nur gerade</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Davon:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Exemplare nacheinander</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 statt 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 ist die niedrigste, 100 die höchste</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorität:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Nach Freigabe</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Abends</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Nachts</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In der zweiten Schicht</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In der dritten Schicht</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Uhrzeit des Drucks</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Drucken:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Abrechnung:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>Der Auftrag läuft ohne dieses Fenster weiter</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>Verkleinern, wenn zu groß</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>An das Band anpassen</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Band füllen, Rest abschneiden</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Längere Seite entlang des Bandes</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Entlang des Bandes</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>Quer zum Band</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Entlang des Bandes, kopfüber</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>Quer zum Band, kopfüber</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Entlang des Bandes:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>Quer zum Band:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>An das Papier anpassen</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Papier füllen, Rest abschneiden</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Richtung:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Wie es am besten passt</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Nach links gedreht</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Nach rechts gedreht</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Kopfstehend</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Seiten je Etikett:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Seiten je Blatt:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Reihenfolge:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Von links nach rechts, dann abwärts</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Von rechts nach links, dann abwärts</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Abwärts, dann von links nach rechts</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Abwärts, dann von rechts nach links</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Einfache Linie</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Doppelte Linie</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Gilt für mehrere Seiten auf einem Blatt oder Etikett</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Hinweise</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Installed in the printer</source>
        <translation>Im Drucker eingebaut</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>Das Plug-in %1 konnte seinen Bereich nicht anlegen. Gedruckt werden kann auch ohne ihn.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Der Bereich „%1“ von %2 hat keine Ansicht. Seine Werte werden so gedruckt, wie sie vorgegeben sind.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>Das Plug-in %1 wird nicht verwendet: %2. Gedruckt werden kann auch ohne es.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>Das Plug-in %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>Der Bereich „%1“ von %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>Das Plug-in %1 hat eine Option gesendet, die kein Auftrag enthalten kann. Sie wurde weggelassen: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Bereiche ändern %1 ohne Ende (%2). Gedruckt wird, was jetzt eingestellt ist.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>Das Plug-in %1 sendet %2=%3, was die Beschreibung des Druckers nicht kennt.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1 konnte seine Werte nicht übergeben</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1 konnte seine Werte nicht wiederherstellen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PaperMenu</name>
    <message>
        <source>%1 × %2</source>
        <comment>width and height of a page</comment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The printer&apos;s description names no paper.</source>
        <translation>Die Beschreibung des Druckers nennt kein Papier.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Eigener Wert …</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Eigene (%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>Der Druckserver %1 möchte wissen, wer druckt.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>Das wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>Ben&amp;utzer:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Die Voreinstellung %1 wird ersetzt.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Eine Voreinstellung %1 gibt es schon.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>„%1“ nehmen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Wie zuletzt</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>&amp;Voreinstellung:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Voreinstellungen speichern, umbenennen oder löschen</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Speichern unter …</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen …</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Als Standar&amp;d festlegen</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Damit drucken, wenn kein Drucker genannt ist</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Voreinstellungen gehören zu einer Warteschlange, und hier ist keine.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>Die Voreinstellung %1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>Die Voreinstellung %1 löschen? Andere Programme haben sie auch und verlieren sie.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Voriges Etikett</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Nächstes Etikett</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etikett %1 von %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Ein Teil der Seite wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Auf dieser Seite ist nichts.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>Tinte dieser Farbe ist auf diesem Band schlecht zu sehen.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blätter</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 Band</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n Etikett</numerusform>
            <numerusform>%n Etiketten</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Keine Vorschau: %1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>Die Seiten des Programms kommen später, für diese Größe gesetzt.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>&amp;Drucker:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Band:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Auf die Werte beim Öffnen des Dialogs zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Dr&amp;ucken</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Dieser Bereich hat keine Ansicht.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Länge anpassen</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Das Band so lang machen, wie das Gezeichnete mit beiden Rändern braucht</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Angepasst halten</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Auf dem Dokument ist nichts gezeichnet: Das Band behält seine Länge.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>Das Dokument braucht mehr Band, als der Drucker nimmt: Es wird verkleinert.</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>Druckeroptionen</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Befehl an&amp;zeigen …</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>Derselbe Auftrag als Befehl für die Shell</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Wählen Sie für eines davon etwas anderes.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Ändern und &amp;drucken</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Trotzdem dru&amp;cken</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>Die Bandlänge wurde von Hand auf %1 gesetzt. Durch die passende Länge ersetzen?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Ei&amp;nstellungen:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>Der Auftrag wird gedruckt.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>Der Drucker wird noch verbunden.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Wählen Sie zuerst einen Drucker.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>Der Drucker lässt hier keine Wahl.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Mit diesem Drucker, diesem Band oder den anderen Einstellungen nicht verfügbar.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Wird verbunden …</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Drucker wählen</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>Der Drucker ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Hilfe zu dieser Seite der Einstellungen</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – wird verbunden …</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 nimmt die Einstellungen nicht an. Gedruckt wurde nichts.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>Die Einheit gilt nur für dieses Fenster: %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Dieser Drucker hat keine Beschreibung: Was gedruckt wird, bekommt er so, wie es ist. Daher gibt es keine Vorschau, und wie viele Seiten herauskommen, weiß niemand.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Keine Vorschau: Die Beschreibung des Druckers nennt kein Papier.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>„%1“ ist von „%2“ ausgeschaltet: Dieser Drucker, das gewählte Band oder eine andere Einstellung dort bietet es nicht an.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>„%1“ ist von „%2“ ausgeschaltet: Dieser Drucker bietet dort nichts zur Wahl an.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>„%1“ passt nicht zu dem, was für „%2“ eingestellt ist.</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Erneut fragen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt …</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet …</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>Der Druckserver antwortet nicht. Seine Drucker kommen wieder, wenn er es tut.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>Es gibt keinen Standarddrucker. Wählen Sie einen Drucker.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>Der Drucker %1 ist nicht mehr da. Wählen Sie einen anderen oder warten Sie, bis er zurück ist. Ihre Einstellungen bleiben.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>Die Beschreibung des Druckers %1 hat sich auf dem Druckserver geändert. Laden Sie sie vor dem Drucken neu.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>Der zuletzt benutzte Drucker %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>Stattdessen wird der Drucker %1 genommen.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>Der Drucker %1 wurde auf dem Druckserver geändert, und ohne Passwort wurde seine Beschreibung nicht angesehen. Fragen Sie vor dem Drucken erneut.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (keine Warteschlange)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>nicht mehr da</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Standort: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Eine Klasse: Der Auftrag geht an einen ihrer Drucker, der frei ist.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Im Netzwerk gefunden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a printer and its state</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterPopUp</name>
    <message>
        <source>Search by name, description or location</source>
        <translation>Suche nach Name, Beschreibung oder Standort</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Drucker suchen</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>Den Auftrag in einer Datei speichern, statt ihn zu drucken</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Als &amp;PDF speichern …</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Drucker&amp;daten speichern …</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Druckerdaten speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Druckerdaten (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Befehle für die Shell</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>Derselbe Auftrag mit &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>Dieselben Optionen mit &amp;lp, das nichts anordnet:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Den Befehl von %1 kopieren</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Bandvorschau</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Länge %1, Breite %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Papiervorschau</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; ein Teil der Seite wird abgeschnitten</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>Die Einheit der Längen, die hier stehen</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Längeneinheit</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>Die Filter können nicht gestartet werden (%1). Prüfen Sie, ob CUPS vollständig installiert ist.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>Die Filter von %1 konnten das Dokument %2 nicht drucken: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Das Programm cupsfilter fehlt. Installieren Sie das Paket „cups“.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>Die Filter von %1 haben aus dem Dokument nichts erzeugt. Prüfen Sie, ob es Seiten zum Drucken enthält.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Das Dokument %1 kann nicht gelesen werden (%2). Geben Sie eine lesbare Datei an.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>Der Druckserver hat das Dokument %1 nicht angenommen (%2). Prüfen Sie, ob die Warteschlange Dokumente dieser Art druckt.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>Die Warteschlange %1 ist nicht erreichbar (%2). „lpstat -e“ nennt die vorhandenen Warteschlangen.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 gehört nicht zu den Werten, die die PPD-Datei des Druckers aufführt.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>Die Option %1 erreicht den Filter des Druckers nie, weil der Druckserver sie für sein eigenes Attribut %2 hält. Geben Sie ihr in der PPD-Datei einen anderen Namen.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Die PPD-Datei %1 kann nicht gelesen werden (%2). Geben Sie eine lesbare PPD-Datei an.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>Die PPD-Datei %1 ist ungültig, Zeile %2: %3. Berichtigen Sie die Datei oder geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>Die PPD-Datei der Warteschlange %1 ist vom Druckserver nicht zu bekommen (%2). Prüfen Sie, ob die Warteschlange eingerichtet ist.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>der Warteschlange %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>wird gedruckt</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>storniert</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>Die Druckdaten sind in %1 (%2 Byte).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Auftrag %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 ist beschädigt: Keine Seite ist lesbar.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 ist kein PDF-Dokument.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 ist durch ein Kennwort geschützt. Speichern Sie es ohne Kennwort und drucken Sie das.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 hat keine Seite.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>Der Bereich „%1“ hält %2 in seinen Grenzen und Schritten. Statt %3 enthält der Auftrag %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 gehört nicht zu den Werten, die die PPD-Datei des Druckers aufführt. Der Auftrag enthält %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Die Filter des Druckers laufen ohne Abschottung, weil bubblewrap fehlt: Installieren Sie das Paket bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Die Filter des Druckers laufen ohne Abschottung, weil dieser Rechner sie nicht erlaubt (%1): Lassen Sie Benutzer Namensräume anlegen.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>Die Filter konnten aus dem Dokument %1 keine Seiten machen: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>Das Bild %1 (%2 x %3 Punkte) kann nicht entpackt werden (%4). Verkleinern Sie es oder drucken Sie es als PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>Das Bild %1 ist beschädigt (%2). Erstellen Sie es neu oder nennen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>Das Dokument %1 ist mit einem Kennwort geschützt. Speichern Sie es ohne Kennwort und drucken Sie dieses.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>Das Dokument %1 ist beschädigt (%2). Erstellen Sie es neu oder nennen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>Das Dokument %1 hat keine Seite. Nennen Sie eines, in dem etwas zu drucken ist.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Die Etiketten können nicht gesetzt werden (%1). Prüfen Sie, ob das Dokument vollständig ist und ob Platz für temporäre Dateien da ist.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>Die Beschreibung dieses Druckers erlaubt keine Seite der gewählten Länge. Die Seite bleibt %1 mm lang, und die Länge bleibt dem Treiber überlassen.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>Eine Länge, die so nah an der des Bandes selbst liegt, macht das Drucksystem zu dieser: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>Die Ränder lassen vom Band nichts zum Bedrucken übrig. Wählen Sie ein längeres Band oder einen kleineren Rand.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Keine Seite des Dokuments ist ausgewählt. Ändern Sie den Seitenbereich.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>Der Bereich „%1“ bietet %2=%3 nicht an, obwohl der Drucker es hat. Der Auftrag enthält %4=%5.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>Das Dokument %1 ist nicht mehr da: Es wurde nichts gedruckt. Legen Sie es zurück, oder öffnen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>Das Dokument %1 wurde geändert, seit es geöffnet wurde: Es wurde nichts gedruckt. Öffnen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>sie ist größer als jede Druckerbeschreibung</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Die PPD-Datei %1 kann nicht in einer temporären Datei abgelegt werden (%2): Schaffen Sie dort Platz.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>Das Drucken wurde angehalten.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>Die Filter von %1 wurden mit dem Dokument %2 nicht fertig und wurden angehalten.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>Der Druckerbeschreibung %1 wird vertraut; sie führt eigene Programme oder Befehle aus: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>eine Datei dieses Namens ist schon da</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>sie ist eine Pipe oder ein Gerät</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Die PPD-Datei der Warteschlange %1 kann nicht in einer temporären Datei abgelegt werden (%2): Schaffen Sie dort Platz.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>Die Druckdaten gingen an die Standardausgabe (%1 Byte).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>Seite %1 des Dokuments %2 hat keine Größe. Lassen Sie sie weg oder erstellen Sie sie neu.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>Eine Länge, die so nah an der eines anderen Papiers liegt, macht das Drucksystem zu dieser: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>mehr als %1 MiB Speicher wären nötig</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Die PPD-Datei %1 ist abgeschnitten: Ihr Ende fehlt. Kopieren Sie sie neu.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Die gewählten Seiten lassen sich nicht zusammenstellen (%1). Prüfen Sie, ob das Dokument heil ist und Platz für temporäre Dateien da ist.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>„%1“ wird „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>„%1“ wechselt von „%2“ zu „%3“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>„%1“ passt nicht zu „%2“.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 passen nicht zusammen.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>Die Größen werden nicht gemerkt, weil %1 nicht geschrieben werden kann.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Einzelne geschweifte Klammern und unsichtbare Zeichen weglassen.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>%1 bis %2 Zeichen angeben.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Mindestens %1 Zeichen angeben.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>%1 bis %2 Ziffern angeben.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Mindestens %1 Ziffern angeben.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Eine Länge von %1 bis %2 Zoll angeben.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Eine Länge von %1 bis %2 mm angeben.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Eine ganze Zahl von %1 bis %2 angeben.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Eine Zahl von %1 bis %2 angeben.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>Der Wert der Option %1 steht in geschweiften Klammern, die der Druckserver weglässt. Geben Sie %1 einen einfachen Wert.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 kennt das Drucksystem nicht: Jede Seite kommt auf ein eigenes Blatt.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>Die Option %1 ändert auf Band nichts. Wie Seiten darauf liegen, sagen print-scaling, orientation-requested, position und number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>der Druckserver sagt nicht, warum</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>Der Druckserver sagt nichts mehr zum Auftrag %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>Der Auftrag %1 ist fehlgeschlagen: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Der Auftrag %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>Der Auftrag %1 ist gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>Der Auftrag %1 wird zurückgehalten, bis er freigegeben wird.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>Der Auftrag %1 wartet: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>Der Auftrag %1 wird gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>Der Auftrag %1 wartet hinter anderen: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>Der Auftrag %1 wartet auf den Drucker.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>Was aus dem Auftrag %1 wurde, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>Der Auftrag %1 lässt sich nicht abbrechen (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>Die Einstellungen lassen sich nicht fürs nächste Mal merken: %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>Die Datei mit Ihren Voreinstellungen, %1, kann nicht gelesen werden (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>Das sind mehr Optionen, als CUPS in einer Voreinstellung behält.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Eine Option hat einen Wert, den CUPS in keiner Voreinstellung behalten kann.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>Die Datei mit Ihren Voreinstellungen, %1, kann nicht geschrieben werden (%2). Sie bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>Die Datei %1 ist zu groß für eine PPD-Datei. Nennen Sie eine PPD-Datei.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 hat keine Voreinstellung %2 von Ihnen.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Eine Voreinstellung %1 gibt es schon.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS kann keine Voreinstellung behalten, deren Name Leerzeichen, Schrägstriche, Anführungszeichen oder eines von # &lt; &gt; enthält.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Dieser Name ist länger, als CUPS behalten kann.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>Die Option %1=%2 der Voreinstellung hat dieser Drucker nicht mehr. Die Voreinstellung behält sie, bis Sie sie überschreiben.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>Der Drucker %1 nimmt keine Aufträge an.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>Der Drucker %1 nimmt keine Aufträge an: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>Der Drucker %1 ist angehalten. Ein Auftrag wartet, bis es weitergeht.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>Der Drucker %1 ist angehalten: %2. Ein Auftrag wartet, bis es weitergeht.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>Der Drucker %1 meldet: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>Die Warteschlange %1 hat keine Druckerbeschreibung, mit der sich Druckerdaten erzeugen ließen. Speichern Sie stattdessen eine PDF-Datei.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>Die PDF-Datei ist %1 (%2 Byte).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>Die Warteschlange %1 nimmt keine Aufträge an. Näheres zeigt „lpstat -a %1“.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 ist keine Größe. Schreiben Sie Custom.BREITExLÄNGEmm oder mit in, cm oder pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: Der Drucker nimmt keine anderen Größen als seine eigenen.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 ist kleiner oder größer, als der Drucker es nehmen kann.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 gehört nicht zu den Werten, die die PPD-Datei des Druckers aufführt.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: Diesen Wert kennt CUPS für %1 nicht.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>Der Druckserver %1 verlangt Benutzernamen und Passwort und bekam keine, die er annimmt.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>Der Druckserver %1 antwortet nicht mehr. Versuchen Sie es wieder, wenn er zurück ist.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>kein Band mehr</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier mehr</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>anderes Band nötig</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>anderes Papier nötig</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>wenig Band übrig</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>wenig Papier übrig</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>Bandstau</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>die Klappe ist offen</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>eine Tür ist offen</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>keine Kassette eingelegt</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>das Papierfach fehlt</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>wenig Tinte übrig</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>keine Tinte mehr</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>wenig Toner übrig</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>kein Toner mehr</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>nach diesem Auftrag angehalten</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>ausgeschaltet oder nicht verbunden</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>er antwortet nicht</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>wird verbunden</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>die Platte des Druckservers ist voll</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>ein Teil des Treibers fehlt</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>der Druckserver traut seinem Treiber nicht</translation>
    </message>
    <message>
        <source>in</source>
        <comment>the sign of the inch</comment>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <comment>a length in feet</comment>
        <translation>%1 Fuß</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): choose another printer.</source>
        <translation>Die Warteschlange %1 ist nicht erreichbar (%2). Wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>Die Warteschlange %1 hat den Auftrag nicht angenommen (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden (%2). Geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>Die Datei %1 wird nur als Ganzes ersetzt, und neben sie kann nichts geschrieben werden (%2). Geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>Die Ausgabe (%1) ist dieselbe Datei wie %2, die nur gelesen wird. Geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>Der Teil dieses Programms, der Seiten zeichnet, kann nicht geladen werden (%1). Installieren Sie es neu.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>Die Druckerbeschreibung %1 bringt eigene Programme oder Befehle mit, für die niemand bürgt: %2. Nichts davon wurde ausgeführt.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>Es gibt keinen Standarddrucker. Wählen Sie einen Drucker.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>Der Druckserver kennt keine Warteschlange %1. Wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>Der Druckserver %1 antwortet nicht. Er wird gefragt, bis er es tut.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 ruft sich ohne Ende selbst auf und wurde nicht noch einmal gefragt.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 hat das Fenster %2 s warten lassen.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 ist gescheitert.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 ist gescheitert: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>Eine temporäre Datei kann nicht geschrieben werden (%1): Prüfen Sie, ob der Ordner für temporäre Dateien beschreibbar ist und Platz hat.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 geht so, wie es ist, an den Druckserver, der vielleicht etwas damit anfangen kann.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>Das Dokument %1 ist leer: Nennen Sie eine Datei, in der etwas zu drucken ist.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Druckerbefehle</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>der Drucker arbeitet</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>das Programm, das es liest, ist abgebrochen</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>Seite %1 würde %2 mm breit und %3 mm lang, was niemand lesen kann. Wählen Sie ein längeres Band, einen kleineren Rand oder weniger Seiten pro Etikett.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>Ein Dokument wie %1 lässt sich nicht auf Band setzen. Öffnen Sie es in einem Programm, das es anzeigt, speichern Sie es dort als PDF oder PNG, und drucken Sie das.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>Der Auftrag %1 ist gescheitert: %2. Er bleibt in der Warteschlange: Brechen Sie ihn in den Druckereinstellungen des Systems ab, oder starten Sie ihn dort erneut.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>Vom Auftrag %2-%1 ist vielleicht ein Teil auf dem Server geblieben: Brechen Sie ihn in den Druckereinstellungen des Systems ab.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>Der Drucker hat keine Option %1. Ist %2 gemeint?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>„%1“ ist keine Liste von Seiten: Schreiben Sie sie als 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>Es gibt keine Seite %1: Seiten zählen ab 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>Die Seiten %1-%2 laufen rückwärts: Schreiben Sie %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>Der Druckserver macht höchstens %1 Kopien eines Auftrags, nicht %2. Verlangen Sie weniger.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>Der Druckserver bringt nicht %1 Seiten auf ein Blatt (number-up). Wählen Sie eine dieser Zahlen: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>Das Programm druckt einen Teil: seine aktuelle Seite oder die Auswahl.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>es ist leer</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es ist zu groß</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>Das Dokument des Programms kann nicht gelesen werden (%1). Drucken Sie es noch einmal, oder speichern Sie es als PDF und drucken Sie dieses.</translation>
    </message>
</context>
</TS>
