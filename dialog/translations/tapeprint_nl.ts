<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>het programma stopte terwijl deze plug-in startte; de volgende keer wordt hij weer geprobeerd</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>het programma stopte terwijl deze plug-in startte, en de keer daarna weer; hij wordt weer geprobeerd als de bundel is veranderd</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>de code kan niet worden geladen: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>de code is niet wat de metagegevens zeggen</translation>
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
        <source>it failed while it was starting: %1</source>
        <translation>het starten is mislukt: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>het starten is mislukt</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>De beschrijving van de printer vraagt om de plug-in %1, die niet is geïnstalleerd. Afdrukken kan ook zonder.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>De plug-in %1 wordt gebruikt in plaats van %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>De plug-in %1 wordt niet gebruikt: %2. Afdrukken kan ook zonder; werk de plug-in bij of verwijder hem.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kan niet worden gelezen</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 is van iemand anders</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>iedereen mag in %1 schrijven</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>hij is gemaakt voor een andere paneelinterface (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>hij is gemaakt voor een latere versie van de paneelinterface (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>het bestand %1 ontbreekt</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>de code is geen plug-in die deze Qt kan laden</translation>
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
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>een ander programma wacht al een minuut of langer op deze plug-in</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Geen pagina gekozen</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Tellen…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Aantal onbekend</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>Dit is een ongewone hoeveelheid: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>%n etiket afdrukken</numerusform>
            <numerusform>%n etiketten afdrukken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>%n vel afdrukken</numerusform>
            <numerusform>%n vellen afdrukken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Aangepast…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Oplo&amp;ssen</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Oplossen: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Kies voor een ervan iets anders.</translation>
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
        <translation>Aangepast formaat</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nieuw formaat</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>&amp;Bewaard:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ver&amp;wijderen</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Om te bewaren</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;aam:</translation>
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
        <translation>Schrijf pagina’s als 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagina’s:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Oneven en even</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Alleen oneven</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Alleen even</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Daarvan:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Laatste pagina eerst</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Kopieën na elkaar</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 in plaats van 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 is de laagste, 100 de hoogste</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Prioriteit:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Meteen</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Na vrijgave</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Overdag</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>’s Avonds</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>’s Nachts</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In de tweede ploeg</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In de derde ploeg</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>In het weekend</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>Op een tijdstip</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Tijdstip van afdrukken</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Afdrukken:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Facturering:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukt af</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>De taak gaat door zonder dit venster</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
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
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Grootte:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Passend op het papier</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Papier vullen, rest afsnijden</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Richting:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Zoals het het beste past</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Naar links gedraaid</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Naar rechts gedraaid</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Ondersteboven</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Pagina’s per etiket:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Pagina’s per vel:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Volgorde:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Van links naar rechts, dan omlaag</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Van rechts naar links, dan omlaag</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Omlaag, dan van links naar rechts</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Omlaag, dan van rechts naar links</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Kader:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Enkele lijn</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Dubbele lijn</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Dit gaat over meer pagina’s op één</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Meldingen</translation>
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
        <translation>In de printer geïnstalleerd</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>De plug-in %1 wordt niet gebruikt: %2. Afdrukken kan ook zonder.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>De plug-in %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>Het paneel ‘%1’ van %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>De plug-in %1 stuurde een optie die geen taak kan bevatten en die is weggelaten: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Panelen veranderen %1 eindeloos (%2): er wordt afgedrukt met de huidige waarde.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>De plug-in %1 stuurt %2=%3, dat de beschrijving van de printer niet kent.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1 kon de waarden niet doorgeven</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1 kon de waarden niet herstellen</translation>
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
        <translation>De beschrijving van de printer noemt geen papier.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Aangepast…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Aangepast (%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>De afdrukserver %1 wil weten wie er afdrukt.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>Dat is niet aangenomen.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>Gebr&amp;uiker:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Wachtwoord:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naam:</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>De voorinstelling %1 wordt vervangen.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Er is al een voorinstelling %1.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>“%1” gebruiken</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Standaard van de printer</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Zoals de vorige keer</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>Voorin&amp;stelling:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Voorinstellingen opslaan, hernoemen of verwijderen</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>Op&amp;slaan als…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>&amp;Overschrijven</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Hernoemen…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Verwijderen…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Als stan&amp;daard instellen</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Hiermee afdrukken als er geen printer is genoemd</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Voorinstellingen horen bij een wachtrij, en hier is er geen.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (gewijzigd)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>Er is geen voorinstelling %1 meer.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voorinstelling opslaan</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voorinstelling hernoemen</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voorinstelling verwijderen</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>De voorinstelling %1 verwijderen? Andere programma’s hebben die ook en raken die kwijt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
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
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>De pagina’s van het programma komen later, opgemaakt voor dit formaat.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Volgende pagina</translation>
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
        <source>Printer Options</source>
        <translation>Printeropties</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Taak</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>O&amp;pdracht tonen…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>Dezelfde taak als opdracht voor de shell</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Kies voor een ervan iets anders.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Wijzigen en afdru&amp;kken</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>&amp;Toch afdrukken</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>De tapelengte is met de hand op %1 gezet. Vervangen door de passende lengte?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>I&amp;nstellingen:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>De taak wordt afgedrukt.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>De printer wordt nog verbonden.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Kies eerst een printer.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>De printer biedt hier geen keuze.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Niet beschikbaar met deze printer, deze tape of de andere instellingen.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Opnieuw &amp;laden</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Kies een printer</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>De printer is er niet meer.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Taak annuleren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Hulp bij deze pagina met instellingen</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – verbinden…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 aanvaardt de instellingen niet. Er is niets afgedrukt.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>De eenheid geldt alleen voor dit venster: %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Deze printer heeft geen beschrijving: wat wordt afgedrukt, krijgt hij zoals het is. Daarom is er geen voorbeeld en is niet bekend hoeveel pagina’s eruit komen.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Geen voorbeeld: de beschrijving van de printer noemt geen papier.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1” is uitgeschakeld door “%2”: deze printer, de gekozen tape of een andere instelling daar biedt het niet aan.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1” is uitgeschakeld door “%2”: deze printer biedt daar niets te kiezen.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>“%1” gaat niet samen met wat voor “%2” is ingesteld.</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Opnieuw vragen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Afdrukken…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annuleren…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Verzenden…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>De afdrukserver antwoordt niet. Zijn printers komen terug zodra hij antwoordt.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>Er is geen standaardprinter. Kies een printer.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>De printer %1 is er niet meer. Kies een andere of wacht tot die terug is: uw instellingen blijven bewaard.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>De beschrijving van de printer %1 is op de server gewijzigd. Laad die opnieuw voor u afdrukt.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>De printer %1, die het laatst is gebruikt, is er niet meer.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>In plaats daarvan wordt de printer %1 genomen.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>De printer %1 is op de printserver gewijzigd, en zonder wachtwoord is de beschrijving niet bekeken. Vraag opnieuw voordat u afdrukt.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (geen wachtrij)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (standaard)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>niet meer aanwezig</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Locatie: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Een klasse: welke printer ervan ook vrij is, drukt de taak af.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Op het netwerk gevonden</translation>
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
        <translation>Zoeken op naam, beschrijving of locatie</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Printers zoeken</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>etiketten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>De taak in een bestand opslaan in plaats van afdrukken</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Opslaan als &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Printer&amp;gegevens opslaan…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Opslaan als PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Printergegevens opslaan</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-documenten (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Printergegevens (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Opdrachten voor de shell</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>Dezelfde taak met &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>Dezelfde opties met &amp;lp, dat niets opmaakt:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>De opdracht van %1 kopiëren</translation>
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
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>De eenheid van de lengten die hier staan</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Inch</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Lengte-eenheid</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inch</translation>
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
        <translation>zonder opgave van reden</translation>
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
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 komt niet voor in de keuzes van het PPD-bestand van de printer.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>De optie %1 bereikt het filter van de printer nooit, omdat de afdrukserver haar voor zijn eigen attribuut %2 houdt. Geef haar in het PPD-bestand een andere naam.</translation>
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
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>De filters van de printer draaien zonder afscherming, omdat bubblewrap ontbreekt: installeer het pakket bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>De filters van de printer draaien zonder afscherming, omdat deze computer dat niet toestaat (%1): laat gebruikers naamruimten maken.</translation>
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
        <source>standard output</source>
        <translation>standaarduitvoer</translation>
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
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Het PPD-bestand %1 is afgebroken: het einde ontbreekt. Kopieer het opnieuw.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>De gekozen pagina’s kunnen niet worden samengevoegd (%1): kijk of het document heel is en of er ruimte is voor tijdelijke bestanden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>“%1” wordt “%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>“%1” gaat van “%2” naar “%3”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1” gaat niet samen met “%2”.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 gaan niet samen.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>De formaten worden niet bewaard, omdat %1 niet kan worden geschreven.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Laat losse accolades en onzichtbare tekens weg.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Geef %1 tot %2 tekens op.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Geef minstens %1 tekens op.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Geef %1 tot %2 cijfers op.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Geef minstens %1 cijfers op.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Geef een lengte van %1 tot %2 inch op.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Geef een lengte van %1 tot %2 mm op.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Geef een geheel getal van %1 tot %2 op.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Geef een getal van %1 tot %2 op.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>De waarde van optie %1 staat tussen accolades, die de afdrukserver weglaat: geef %1 een gewone waarde.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 is geen aantal dat het afdruksysteem kent: elke pagina krijgt een eigen vel.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>De optie %1 verandert niets op tape: geef met print-scaling, orientation-requested, position en number-up aan hoe pagina’s liggen.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>de afdrukserver zegt niet waarom</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>De afdrukserver meldt niets meer over taak %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>Taak %1 is mislukt: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Taak %1 is geannuleerd.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>Taak %1 is afgedrukt.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>Taak %1 wordt vastgehouden tot die wordt vrijgegeven.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>Taak %1 wacht: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>Taak %1 wordt afgedrukt.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>Taak %1 wacht achter andere: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>Taak %1 wacht op de printer.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>Wat er van taak %1 is geworden, is niet bekend.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>Taak %1 kan niet worden geannuleerd (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>De instellingen kunnen niet voor de volgende keer worden bewaard: %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>het is te groot</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>Het bestand met uw voorinstellingen, %1, kan niet worden gelezen (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>Dit zijn meer opties dan CUPS in een voorinstelling bewaart.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Een optie heeft een waarde die CUPS niet in een voorinstelling kan bewaren.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>Het bestand met uw voorinstellingen, %1, kan niet worden geschreven (%2): het blijft zoals het was.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>Het bestand %1 is te groot voor een PPD: noem een PPD-bestand.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 heeft geen voorinstelling %2 van u.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Er is al een voorinstelling %1.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Een voorinstelling heeft een naam nodig.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS kan geen voorinstelling bewaren waarvan de naam spaties, schuine strepen, aanhalingstekens of een van # &lt; &gt; bevat.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Deze naam is langer dan CUPS kan bewaren.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>Deze printer heeft de optie %1=%2 van de voorinstelling niet meer. De voorinstelling houdt die tot u haar overschrijft.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>Drukt af</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>neemt geen taken aan</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>De printer %1 neemt geen taken aan.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>De printer %1 neemt geen taken aan: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>De printer %1 is gestopt. Een taak wacht tot die verdergaat.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>De printer %1 is gestopt: %2. Een taak wacht tot die verdergaat.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>De printer %1 meldt: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>De wachtrij %1 heeft geen printerbeschrijving om gegevens mee te maken: sla in plaats daarvan een PDF op.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>De PDF staat in %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>De wachtrij %1 neemt geen taken aan: zie lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 is geen formaat: schrijf Custom.BREEDTExLENGTEmm, of met in, cm of pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: de printer neemt alleen de formaten die hij heeft.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 is kleiner of groter dan de printer aankan.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 komt niet voor in de keuzes van het PPD-bestand van de printer.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: CUPS kent deze waarde niet voor %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>De afdrukserver %1 vraagt een gebruikersnaam en wachtwoord, en kreeg er geen die hij aanneemt.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>De afdrukserver %1 antwoordt niet meer: probeer het opnieuw als hij terug is.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>tape is op</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>papier is op</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>andere tape nodig</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>ander papier nodig</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>weinig tape over</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>weinig papier over</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>de tape zit vast</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>papier zit vast</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>het deksel is open</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>een klep is open</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>er zit geen cassette in</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>de papierlade ontbreekt</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>de uitvoerlade is vol</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>weinig inkt over</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inkt is op</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>weinig toner over</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>toner is op</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>gepauzeerd</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>gepauzeerd na deze taak</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>nieuwe taken worden vastgehouden</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>uitgeschakeld of niet verbonden</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>hij antwoordt niet</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>wordt verbonden</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>de schijf van de afdrukserver is vol</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>een deel van het stuurprogramma ontbreekt</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>de afdrukserver vertrouwt het stuurprogramma niet</translation>
    </message>
    <message>
        <source>in</source>
        <comment>the sign of the inch</comment>
        <translation>in</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <comment>a length in feet</comment>
        <translation>%1 ft</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): choose another printer.</source>
        <translation>De wachtrij %1 is niet bereikbaar (%2): kies een andere printer.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>De wachtrij %1 heeft de taak niet aanvaard (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>Het bestand %1 kan niet worden geschreven (%2): noem een ander.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>Het bestand %1 wordt alleen in zijn geheel vervangen, en ernaast kan niets worden geschreven (%2): noem een ander.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>De uitvoer (%1) is hetzelfde bestand als %2, dat alleen wordt gelezen: noem een andere.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>Het deel van dit programma dat pagina’s tekent kan niet worden geladen (%1): installeer het opnieuw.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>De printerbeschrijving %1 brengt eigen programma’s of opdrachten mee, waarvoor niemand instaat: %2. Er is niets uitgevoerd.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>Er is geen standaardprinter: kies er een.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>De afdrukserver kent geen wachtrij %1: kies een andere printer.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>De afdrukserver %1 antwoordt niet. Er wordt opnieuw gevraagd tot hij dat doet.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 roept zichzelf eindeloos aan en is niet nog eens gevraagd.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 liet het venster %2 s wachten.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 is mislukt.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 is mislukt: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>Een tijdelijk bestand kan niet worden geschreven (%1): controleer of de map voor tijdelijke bestanden beschrijfbaar is en ruimte heeft.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 gaat zoals het is naar de afdrukserver, die er misschien raad mee weet.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>Het document %1 is leeg: noem een bestand waarin iets af te drukken is.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Printeropdrachten</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>de printer is bezig</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>het programma dat het leest, is afgebroken</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>Pagina %1 zou %2 mm breed en %3 mm lang worden, wat niemand kan lezen. Kies een langere tape, een kleinere marge of minder pagina’s per label.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>Het document %1 is van een soort die niet op tape kan worden geplaatst. Open het in een programma dat het toont, bewaar het daar als pdf of png en druk dat af.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>Taak %1 is mislukt: %2. Ze blijft in de wachtrij: annuleer of herstart haar in de printerinstellingen van het bureaublad.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>Taak %2-%1 is mogelijk half verzonden op de server gebleven: annuleer haar in de printerinstellingen van het bureaublad.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>De printer heeft geen optie %1. Is %2 bedoeld?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>“%1” is geen lijst van pagina’s: schrijf ze als 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>Er is geen pagina %1: pagina’s tellen vanaf 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>De pagina’s %1-%2 lopen achteruit: schrijf %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>De afdrukserver maakt hoogstens %1 kopieën van een taak, geen %2. Vraag er minder.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>De afdrukserver zet geen %1 pagina’s op een vel (number-up). Kies een van deze aantallen: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>Het programma drukt een deel af: de huidige pagina of de selectie.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>het is te groot</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>Het document van het programma kan niet worden gelezen (%1): druk het nog eens af, of bewaar het als pdf en druk die af.</translation>
    </message>
</context>
</TS>
