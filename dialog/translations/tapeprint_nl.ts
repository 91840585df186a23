<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Grootte:</translation>
    </message>
    <message>
        <source>Shrink when too large</source>
        <translation>Verkleinen indien te groot</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Aanpassen aan tape</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Tape vullen, rest afsnijden</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Oorspronkelijke grootte</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Richting:</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Lange zijde langs de tape</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Langs de tape</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>Dwars op de tape</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Langs de tape, ondersteboven</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>Dwars op de tape, ondersteboven</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Langs de tape:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>Dwars op de tape:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
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
        <translation>De plug-in %1 kon zijn paneel niet maken. Afdrukken kan ook zonder.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Het paneel ‘%1’ van %2 heeft geen weergave. De waarden worden afgedrukt zoals ze zijn ingesteld.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>Het paneel ‘%1’ kon zijn waarden niet doorgeven: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>Het paneel ‘%1’ kon zijn waarden niet herstellen: %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Vorig etiket</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Volgend etiket</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etiket %1 van %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Een deel van de pagina valt weg.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Op deze pagina staat niets.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>Inkt van deze kleur is op deze tape slecht te zien.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n vel</numerusform>
            <numerusform>%n vellen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 tape</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n etiket</numerusform>
            <numerusform>%n etiketten</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Geen voorbeeld: %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 afdrukken</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>P&amp;rinter:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Tape:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopieën:</translation>
    </message>
    <message>
        <source>Pa&amp;nel:</source>
        <translation>Pa&amp;neel:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Teruggaan naar de waarden bij het openen van het venster</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Afdrukken</translation>
    </message>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (geen afdrukwachtrij)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Dit paneel heeft geen weergave.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Meer opties</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>Pap&amp;ier:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Lengte passend maken</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>De tape zo lang maken als de inhoud nodig heeft, met beide marges</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Passend houden</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Bezig met afdrukken</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Afdrukken…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Indeling</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Er is niets op het document getekend: de tape houdt haar lengte.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>Het document heeft meer tape nodig dan de printer aankan: het wordt verkleind.</translation>
    </message>
    <message>
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>De tapelengte is met de hand op %1 mm gezet. Vervangen door de passende lengte?</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Voorbeeld van de tape</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Lengte %1, breedte %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Papiervoorbeeld</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; een deel van de pagina valt weg</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>zonder opgave van reden</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>De afdrukgegevens kunnen niet naar %1 worden geschreven (%2). Maak daar ruimte of geef met --output een ander bestand op.</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>De filters kunnen niet worden gestart (%1). Controleer of CUPS volledig is geïnstalleerd.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>De filters van %1 konden het document %2 niet afdrukken: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Het programma cupsfilter ontbreekt. Installeer het pakket cups.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>Het bestand %1 kan niet worden geschreven (%2). Geef met --output een ander op.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>De filters van %1 hebben niets van het document gemaakt. Controleer of er pagina’s in staan.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Het document %1 kan niet worden gelezen (%2). Geef een leesbaar bestand op.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>De afdrukserver heeft het document %1 niet aangenomen (%2). Controleer of de wachtrij dit soort documenten afdrukt.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>De wachtrij %1 is niet bereikbaar (%2). Met lpstat -e ziet u welke wachtrijen er zijn.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>De wachtrij %1 heeft de taak niet aangenomen (%2). Zie lpstat -p %1 -l.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 komt niet voor in de keuzes van het PPD-bestand van de printer.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>De optie %1 bereikt het filter van de printer nooit, omdat de afdrukserver haar voor zijn eigen attribuut %2 houdt. Geef haar in het PPD-bestand een andere naam.</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>de code is geen plug-in die deze Qt kan laden</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>hij is gemaakt voor een andere paneelinterface (%1)</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>de metagegevens noemen geen hoofdklasse</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>hij levert geen printerpanelen</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>het bestand %1 ontbreekt</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>de code kan niet worden geladen: %1</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>de hoofdklasse %1 ontbreekt</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>hij werkt niet op dit systeem</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>De plug-in %1 wordt niet gebruikt: %2. Afdrukken kan ook zonder; werk de plug-in bij of verwijder hem.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Het PPD-bestand %1 kan niet worden gelezen (%2). Geef een leesbaar PPD-bestand op.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>Het PPD-bestand %1 is niet geldig, regel %2: %3. Verbeter het bestand of geef een ander op.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>De afdrukserver %1 antwoordt niet. Start hem, noem een andere in CUPS_SERVER of druk zonder server af met --ppd BESTAND.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>Er is geen standaardprinter. Noem een wachtrij met -d WACHTRIJ of druk zonder wachtrij af met --ppd BESTAND.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>De afdrukserver kent geen wachtrij %1. Met lpstat -e ziet u welke wachtrijen er zijn.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>De afdrukserver levert het PPD-bestand van wachtrij %1 niet (%2). Controleer of de wachtrij is ingesteld.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>van wachtrij %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>in de wacht</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>vastgehouden</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>wordt afgedrukt</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>onderbroken</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>afgebroken</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>voltooid</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>verzonden</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>De afdrukgegevens staan in %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Taak %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Het is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 is beschadigd: geen enkele pagina is leesbaar.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 is geen PDF-document.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 is met een wachtwoord beveiligd: bewaar het zonder wachtwoord en druk dat af.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 heeft geen pagina’s.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>Het paneel ‘%1’ houdt %2 binnen zijn grenzen en stappen: in plaats van %3 bevat de taak %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 komt niet voor in de keuzes van het PPD-bestand van de printer: de taak bevat %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>De beschrijving van de printer vraagt om de plug-in %1, die niet is geïnstalleerd. Afdrukken kan ook zonder.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>De filters van de printer draaien zonder afscherming, omdat bubblewrap ontbreekt: installeer het pakket bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>De filters van de printer draaien zonder afscherming, omdat deze computer dat niet toestaat (%1): laat gebruikers naamruimten maken.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>Een tijdelijk bestand kan niet worden geschreven (%1). Maak ruimte vrij in de map voor tijdelijke bestanden.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>De filters konden van het document %1 geen pagina’s maken: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>De afbeelding %1 (%2 x %3 punten) kan niet worden uitgepakt (%4). Maak haar kleiner of druk haar als pdf af.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>De afbeelding %1 is beschadigd (%2). Maak haar opnieuw of noem een andere.</translation>
    </message>
    <message>
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>Het document %1 kan niet op tape worden geplaatst. Druk een pdf, een PostScript-bestand, een afbeelding of platte tekst af.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>Het document %1 is met een wachtwoord vergrendeld. Bewaar het zonder wachtwoord en druk dat af.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>Het document %1 is beschadigd (%2). Maak het opnieuw of noem een ander.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>Het document %1 heeft geen pagina. Noem een document waarin iets af te drukken is.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>De labels kunnen niet worden opgemaakt (%1). Controleer of het document volledig is en of er ruimte is voor tijdelijke bestanden.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>De beschrijving van deze printer laat geen pagina van de gekozen lengte toe. De pagina blijft %1 mm lang en de lengte wordt aan het stuurprogramma overgelaten.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>Een lengte die zo dicht bij die van de tape zelf ligt, wordt door het afdruksysteem daarin veranderd: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>De marges laten niets van de tape over om te bedrukken. Maak de tape langer of de marge kleiner.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Geen van de pagina’s van het document is gekozen. Wijzig het paginabereik.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>Het paneel ‘%1’ biedt %2=%3 niet aan, hoewel de printer het heeft: de taak bevat %4=%5.</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 inch</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>Het document %1 is verdwenen: er is niets afgedrukt. Zet het terug of open een ander.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>Het document %1 is gewijzigd sinds het is geopend: er is niets afgedrukt. Open het opnieuw.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>het is groter dan welke printerbeschrijving ook</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Het PPD-bestand %1 kan niet in een tijdelijk bestand worden bewaard (%2): maak daar ruimte.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>Het afdrukken is gestopt.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>De filters van %1 kwamen niet klaar met het document %2 en zijn gestopt.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>De printerbeschrijving %1 wordt vertrouwd en voert eigen programma’s of opdrachten uit: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>er is al een bestand met deze naam</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>Het bestand %1 wordt alleen in zijn geheel vervangen, en ernaast kan niets worden geschreven (%2): noem een ander met --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>standaarduitvoer</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>De uitvoer (%1) is hetzelfde bestand als %2, dat alleen wordt gelezen: noem een ander met --output.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standaardinvoer</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>het is een pijp of een apparaat</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>De printerbeschrijving %1 brengt eigen programma’s of opdrachten mee, waarvoor niemand instaat: %2. Er is niets uitgevoerd. Vertrouwt u de maker, herhaal het dan met --trust-ppd.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>De PPD van wachtrij %1 kan niet in een tijdelijk bestand worden bewaard (%2): maak daar ruimte.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>De printergegevens gingen naar de standaarduitvoer (%1 bytes).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>Pagina %1 van het document %2 heeft geen afmetingen. Laat die weg of maak die opnieuw.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>Een lengte die zo dicht bij die van een ander papier ligt, wordt door het afdruksysteem daarin veranderd: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>er zou meer dan %1 MiB geheugen nodig zijn</translation>
    </message>
    <message>
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>De pagina’s van het document %1 kunnen niet worden geschreven (%2). Maak ruimte vrij in de map voor tijdelijke bestanden.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Het PPD-bestand %1 is afgebroken: het einde ontbreekt. Kopieer het opnieuw.</translation>
    </message>
</context>
</TS>
