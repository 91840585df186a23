<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Größe:</translation>
    </message>
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
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Richtung:</translation>
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
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1:</translation>
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
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>Der Bereich „%1“ konnte seine Werte nicht übergeben: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>Der Bereich „%1“ konnte seine Werte nicht wiederherstellen: %2</translation>
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
        <source>Pa&amp;nel:</source>
        <translation>Be&amp;reich:</translation>
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
        <source>%1 (no print queue)</source>
        <translation>%1 (keine Druckerwarteschlange)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Printing</source>
        <translation>Druckvorgang</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt …</translation>
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
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>Die Bandlänge wurde von Hand auf %1 mm gesetzt. Durch die passende Länge ersetzen?</translation>
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
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>Die Druckdaten können nicht in %1 geschrieben werden (%2). Schaffen Sie dort Platz oder geben Sie mit --output eine andere Datei an.</translation>
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
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden (%2). Geben Sie mit --output eine andere an.</translation>
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
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>Die Warteschlange %1 hat den Auftrag nicht angenommen (%2). Näheres zeigt „lpstat -p %1 -l“.</translation>
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
        <source>its code is no plug-in that this Qt can load</source>
        <translation>sein Code ist kein Plug-in, das dieses Qt laden kann</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>es ist für eine andere Bereichsschnittstelle gemacht (%1)</translation>
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
        <source>it has no file %1</source>
        <translation>die Datei %1 fehlt</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>sein Code kann nicht geladen werden: %1</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Das Plug-in %1 wird nicht verwendet: %2. Gedruckt werden kann auch ohne es. Aktualisieren oder entfernen Sie das Bundle.</translation>
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
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>Der Druckserver %1 antwortet nicht. Starten Sie ihn, nennen Sie in CUPS_SERVER einen anderen oder drucken Sie mit --ppd DATEI ohne Server.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>Es gibt keinen Standarddrucker. Nennen Sie mit -d WARTESCHLANGE eine Warteschlange oder drucken Sie mit --ppd DATEI ohne eine.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>Der Druckserver kennt keine Warteschlange %1. „lpstat -e“ nennt die vorhandenen Warteschlangen.</translation>
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
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>Die Beschreibung des Druckers verlangt das Plug-in %1, das nicht installiert ist. Gedruckt werden kann auch ohne es.</translation>
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
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>Eine temporäre Datei kann nicht geschrieben werden (%1). Schaffen Sie im Ordner für temporäre Dateien Platz.</translation>
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
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>Das Dokument %1 lässt sich nicht auf Band setzen. Drucken Sie ein PDF, eine PostScript-Datei, ein Bild oder reinen Text.</translation>
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
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 Zoll</translation>
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
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>Die Datei %1 wird nur als Ganzes ersetzt, und neben sie kann nichts geschrieben werden (%2): Nennen Sie mit --output eine andere.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>Die Ausgabe (%1) ist dieselbe Datei wie %2, die nur gelesen wird: Nennen Sie mit --output eine andere.</translation>
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
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>Die Druckerbeschreibung %1 bringt eigene Programme oder Befehle mit, für die niemand bürgt: %2. Nichts davon wurde ausgeführt. Wenn Sie dem Verfasser vertrauen, wiederholen Sie es mit --trust-ppd.</translation>
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
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>Die Seiten des Dokuments %1 können nicht geschrieben werden (%2). Schaffen Sie im Ordner für temporäre Dateien Platz.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Die PPD-Datei %1 ist abgeschnitten: Ihr Ende fehlt. Kopieren Sie sie neu.</translation>
    </message>
</context>
</TS>
