<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>il programma è terminato durante l’avvio di questo plug-in; si riproverà la prossima volta</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>il programma è terminato durante l’avvio di questo plug-in, e di nuovo la volta dopo; si riproverà quando il plug-in sarà cambiato</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>il suo codice non può essere caricato: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>il suo codice non è quello che dicono i metadati</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>non ha la classe principale %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>non può funzionare su questo sistema</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>errore durante l’avvio: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>errore durante l’avvio</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La descrizione della stampante richiede il plug-in %1, che non è installato. La stampa funziona anche senza.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>Il plug-in %1 viene usato al posto di %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Il plug-in %1 non viene usato: %2. La stampa funziona anche senza; aggiornarlo o rimuoverlo.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>non è possibile leggere %1</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 appartiene a qualcun altro</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>chiunque può scrivere in %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>è fatto per un’altra interfaccia di pannelli (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>è fatto per una versione successiva dell’interfaccia di pannelli (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>non contiene il file %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>il suo codice non è un plug-in che questa versione di Qt possa caricare</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>i suoi metadati non indicano una classe principale</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>non offre pannelli per stampanti</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>un altro programma attende questo plug-in da un minuto o più</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Nessuna pagina scelta</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Conteggio…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Quantità non nota</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>È una quantità insolita: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>Stampa %n etichetta</numerusform>
            <numerusform>Stampa %n etichette</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>Stampa %n foglio</numerusform>
            <numerusform>Stampa %n fogli</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Personalizzato…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Ri&amp;solvi</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Risolvi: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Scegliere altro per una di esse.</translation>
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
        <translation>Misura personalizzata</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nuova misura</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>Memori&amp;zzate:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ri&amp;muovi</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Per ricordarla</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;ome:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>Titolo:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Scrivere le pagine così: 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagine:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Dispari e pari</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Solo dispari</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Solo pari</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Di queste:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Prima l’ultima pagina</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Copie una dopo l’altra</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 invece di 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 è la più bassa, 100 la più alta</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorità:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Subito</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quando viene rilasciato</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Di giorno</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Di sera</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Di notte</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Nel secondo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Nel terzo turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Nel fine settimana</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>A un’ora</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Ora di stampa</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Stampare:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Addebito:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>Il lavoro prosegue senza questa finestra</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>Riduci se troppo grande</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Adatta al nastro</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Riempi il nastro, taglia il resto</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Dimensione originale</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Lato lungo lungo il nastro</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Lungo il nastro</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>Di traverso al nastro</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Lungo il nastro, capovolto</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>Di traverso al nastro, capovolto</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Lungo il nastro:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>Di traverso al nastro:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Adatta alla carta</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Riempi la carta, taglia il resto</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Direzione:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Come sta meglio</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Ruotata a sinistra</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Ruotata a destra</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Capovolta</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Pagine per etichetta:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Pagine per foglio:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Ordine:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Da sinistra a destra, poi in giù</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Da destra a sinistra, poi in giù</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>In giù, poi da sinistra a destra</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>In giù, poi da destra a sinistra</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Cornice:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Linea singola</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Linea doppia</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Vale per più pagine su una</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Avvisi</translation>
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
        <translation>Installato nella stampante</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>Il plug-in %1 non ha potuto creare il suo pannello. La stampa funziona anche senza.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Il pannello &quot;%1&quot; di %2 non ha una vista. I suoi valori vengono stampati così come sono definiti.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>Il plug-in %1 non viene usato: %2. La stampa funziona anche senza.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>Il plug-in %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>Il pannello «%1» di %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>Il plug-in %1 ha inviato un’opzione che nessun lavoro può contenere e che è stata omessa: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>I pannelli cambiano %1 senza fine (%2): si stampa con il valore attuale.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>Il plug-in %1 invia %2=%3, che la descrizione della stampante non conosce.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1: impossibile consegnare i valori</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1: impossibile ripristinare i valori</translation>
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
        <translation>La descrizione della stampante non indica alcuna carta.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Personalizzato…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Personalizzata (%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>Il server di stampa %1 vuole sapere chi stampa.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>Non è stato accettato.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utente:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>La preimpostazione %1 verrà sostituita.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Esiste già una preimpostazione %1.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>Usa “%1”</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Valori della stampante</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Come l’ultima volta</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>Preim&amp;postazione:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Salvare, rinominare o eliminare preimpostazioni</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Salva con nome…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>S&amp;ovrascrivi</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Rinomina…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Elimina…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Rendi pre&amp;definita</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Stampa con questa se non si indica una stampante</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Le preimpostazioni appartengono a una coda di stampa, e qui non ce n’è.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificata)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>La preimpostazione %1 non esiste più.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>Eliminare la preimpostazione %1? Anche altri programmi la usano e la perderanno.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Etichetta precedente</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Etichetta successiva</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etichetta %1 di %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Una parte della pagina viene tagliata.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Questa pagina è vuota.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>L’inchiostro di questo colore si vede male su questo nastro.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n foglio</numerusform>
            <numerusform>%n fogli</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 di nastro</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n etichetta</numerusform>
            <numerusform>%n etichette</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Nessuna anteprima: %1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>Le pagine del programma arrivano dopo, impaginate per questo formato.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Stampa %1</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Stam&amp;pante:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Nastro:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copie:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Torna ai valori presenti all’apertura della finestra</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Questo pannello non ha una vista.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>C&amp;arta:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>Adatta &amp;lunghezza</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Rende il nastro lungo quanto serve al contenuto, con entrambi i margini</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Mantieni adattata</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposizione</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Sul documento non è disegnato nulla: il nastro mantiene la sua lunghezza.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>Il documento richiede più nastro di quanto la stampante accetti: viene ridotto.</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>Opzioni della stampante</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Mostra c&amp;omando…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>Lo stesso lavoro come comando per la shell</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Scegliere altro per una di esse.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Modifica e &amp;stampa</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Stampa &amp;comunque</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>La lunghezza del nastro è stata impostata a mano su %1. Sostituirla con quella adatta?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Impostazio&amp;ni:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>Il lavoro è in stampa.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>La connessione alla stampante è ancora in corso.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Scegliere prima una stampante.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>La stampante non offre scelte qui.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Non disponibile con questa stampante, questo nastro o le altre impostazioni.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Ricar&amp;ica</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connessione…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Scegliere una stampante</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>La stampante non c’è più.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Aiuto su questa pagina di impostazioni</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – connessione…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 non accetta le impostazioni. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>L’unità vale solo per questa finestra: impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Questa stampante non ha una descrizione: riceve ciò che si stampa così com’è. Perciò non c’è anteprima e non si sa quante pagine usciranno.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Nessuna anteprima: la descrizione della stampante non indica alcuna carta.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» è disattivato da «%2»: questa stampante, il nastro scelto o un’altra impostazione non lo offre.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» è disattivato da «%2»: questa stampante non offre lì nulla da scegliere.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>«%1» non va d’accordo con ciò che è impostato per «%2».</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Chiedi di nuovo</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Invio…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>Il server di stampa non risponde. Le sue stampanti torneranno quando risponderà.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>Non c’è una stampante predefinita. Scegliere una stampante.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>La stampante %1 non c’è più. Sceglierne un’altra o attendere che torni: le impostazioni restano.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>La descrizione della stampante %1 è cambiata sul server. Ricaricarla prima di stampare.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>La stampante %1, usata l’ultima volta, non c’è più.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>Al suo posto si usa la stampante %1.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>La stampante %1 è stata modificata sul server di stampa e, senza password, la sua descrizione non è stata esaminata. Chiedere di nuovo prima di stampare.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (nessuna coda di stampa)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predefinita)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>non c’è più</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Posizione: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Una classe: stampa il lavoro la stampante libera.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trovata in rete</translation>
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
        <translation>Cerca per nome, descrizione o posizione</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Cerca stampanti</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>etichette</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>Salva il lavoro in un file invece di stamparlo</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Salva come &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Salva &amp;dati di stampa…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Salva dati di stampa</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documenti PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Dati di stampa (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Comandi per la shell</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>Lo stesso lavoro con &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>Le stesse opzioni con &amp;lp, che non impagina nulla:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Copia il comando di %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Anteprima del nastro</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Lunghezza %1, larghezza %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Anteprima della carta</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; una parte della pagina viene tagliata</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>L’unità delle lunghezze mostrate qui</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimetri</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Pollici</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unità di lunghezza</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pollici</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimetri</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>senza indicarne il motivo</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>Impossibile avviare i filtri (%1). Verificare che CUPS sia installato per intero.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>I filtri di %1 non hanno potuto stampare il documento %2: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Manca il programma cupsfilter. Installare il pacchetto cups.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>I filtri di %1 non hanno prodotto nulla dal documento. Verificare che contenga pagine da stampare.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Impossibile leggere il documento %1 (%2). Indicare un file leggibile.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>Il server di stampa non ha accettato il documento %1 (%2). Verificare che la coda stampi questo tipo di documento.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>La coda %1 non è raggiungibile (%2). Il comando lpstat -e elenca le code presenti.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 non è tra le scelte elencate nel file PPD della stampante.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>L’opzione %1 non arriva mai al filtro della stampante, perché il server di stampa la scambia per il proprio attributo %2. Darle un altro nome nel file PPD.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Impossibile leggere il file PPD %1 (%2). Indicare un file PPD leggibile.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>Il file PPD %1 non è valido, riga %2: %3. Correggere il file o indicarne un altro.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>Il server di stampa non fornisce il file PPD della coda %1 (%2). Verificare che la coda sia configurata.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>della coda %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>in attesa</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>sospeso</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>in stampa</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>interrotto</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>terminato con errore</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviato</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>I dati di stampa sono in %1 (%2 byte).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Lavoro %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Non è un file normale.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 è danneggiato: nessuna pagina è leggibile.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 non è un documento PDF.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 è protetto da password: salvarlo senza password e stampare quella copia.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 non ha pagine.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>Il pannello &quot;%1&quot; mantiene %2 entro i suoi limiti e passi: invece di %3 il lavoro contiene %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 non è tra le scelte elencate nel file PPD della stampante: il lavoro contiene %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>I filtri della stampante vengono eseguiti senza isolamento perché manca bubblewrap: installare il pacchetto bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>I filtri della stampante vengono eseguiti senza isolamento perché questo computer non lo consente (%1): consentire agli utenti di creare spazi dei nomi.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>I filtri non sono riusciti a creare pagine dal documento %1: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>L’immagine %1 (%2 x %3 punti) non può essere decompressa (%4). Ridurla o stamparla come PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>L’immagine %1 è danneggiata (%2). Ricrearla o indicarne un’altra.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>Il documento %1 è protetto da password. Salvarlo senza password e stampare quello.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>Il documento %1 è danneggiato (%2). Ricrearlo o indicarne un altro.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>Il documento %1 non ha pagine. Indicarne uno con qualcosa da stampare.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Impossibile disporre le etichette (%1). Verificare che il documento sia completo e che ci sia spazio per i file temporanei.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>La descrizione di questa stampante non accetta pagine della lunghezza scelta. La pagina resta lunga %1 mm e la lunghezza è lasciata al driver.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>Il sistema di stampa trasforma una lunghezza così vicina a quella del nastro in quest’ultima: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>I margini non lasciano nastro su cui stampare. Allungare il nastro o ridurre il margine.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Nessuna pagina del documento è selezionata. Modificare l’intervallo di pagine.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>Il pannello &quot;%1&quot; non offre %2=%3, che la stampante possiede: il lavoro contiene %4=%5.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>Il documento %1 non c’è più: non è stato stampato nulla. Rimetterlo al suo posto o aprirne un altro.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>Il documento %1 è cambiato da quando è stato aperto: non è stato stampato nulla. Aprirlo di nuovo.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>è più grande di qualsiasi descrizione di stampante</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Il file PPD %1 non può essere conservato in un file temporaneo (%2): liberare spazio.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>La stampa è stata interrotta.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>I filtri di %1 non terminavano con il documento %2 e sono stati interrotti.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>La descrizione di stampante %1 è considerata attendibile ed esegue programmi o comandi propri: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>esiste già un file con questo nome</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>lo standard output</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>lo standard input</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>è una pipe o un dispositivo</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Il PPD della coda %1 non può essere conservato in un file temporaneo (%2): liberare spazio.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>I dati di stampa sono andati allo standard output (%1 byte).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>La pagina %1 del documento %2 non ha dimensioni. Tralasciarla o ricrearla.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>Il sistema di stampa trasforma una lunghezza così vicina a quella di un’altra carta in quest’ultima: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>servirebbero più di %1 MiB di memoria</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Il file PPD %1 è troncato: manca la fine. Copiarlo di nuovo.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Impossibile riunire le pagine scelte (%1): controllare che il documento sia integro e che ci sia spazio per i file temporanei.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>“%1” diventa “%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>“%1” passa da “%2” a “%3”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1” non va d’accordo con “%2”.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 non vanno d’accordo tra loro.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>Le misure non vengono ricordate perché non si può scrivere %1.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Tralasciare parentesi graffe singole e caratteri invisibili.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Inserire da %1 a %2 caratteri.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Inserire almeno %1 caratteri.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Inserire da %1 a %2 cifre.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Inserire almeno %1 cifre.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Inserire una lunghezza da %1 a %2 pollici.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Inserire una lunghezza da %1 a %2 mm.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Inserire un numero intero da %1 a %2.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Inserire un numero da %1 a %2.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>Il valore dell’opzione %1 è tra graffe, che il server di stampa toglie: dare a %1 un valore semplice.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 non è un numero noto al sistema di stampa: ogni pagina ha il proprio foglio.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>L’opzione %1 non cambia nulla sul nastro: indicare la disposizione con print-scaling, orientation-requested, position e number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>il server di stampa non dice perché</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>Il server di stampa non dice più nulla del lavoro %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>Il lavoro %1 non è riuscito: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Il lavoro %1 è stato annullato.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>Il lavoro %1 è stampato.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>Il lavoro %1 è trattenuto: attende il rilascio.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>Il lavoro %1 attende: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>Il lavoro %1 è in stampa.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>Il lavoro %1 attende dietro ad altri: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>Il lavoro %1 attende la stampante.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>Non si sa che fine abbia fatto il lavoro %1.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>Impossibile annullare il lavoro %1 (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>Le impostazioni non possono essere conservate per la prossima volta: impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>Impossibile leggere il file delle preimpostazioni, %1 (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>Sono più opzioni di quante CUPS ne conservi in una preimpostazione.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Un’opzione ha un valore che CUPS non può conservare in una preimpostazione.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>Impossibile scrivere il file delle preimpostazioni, %1 (%2): resta com’era.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>Generale</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>Il file %1 è troppo grande per un PPD: indicare un file PPD.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 non ha una vostra preimpostazione %2.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Esiste già una preimpostazione %1.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Una preimpostazione deve avere un nome.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS non può conservare una preimpostazione il cui nome contiene spazi, barre, virgolette o uno di # &lt; &gt;.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Questo nome è più lungo di quanto CUPS possa conservare.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>Questa stampante non ha più l’opzione %1=%2 della preimpostazione. La preimpostazione la conserva finché non viene sovrascritta.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>La stampante %1 non accetta lavori.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>La stampante %1 non accetta lavori: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>La stampante %1 è ferma. Il lavoro attende che riprenda.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>La stampante %1 è ferma: %2. Il lavoro attende che riprenda.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>La stampante %1 segnala: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>La coda %1 non ha una descrizione della stampante con cui creare i dati: salvare invece un PDF.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>Il PDF è in %1 (%2 byte).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>La coda %1 non accetta lavori: vedere lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 non è una misura: scrivere Custom.LARGHEZZAxLUNGHEZZAmm, oppure con in, cm o pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: la stampante accetta solo le misure che ha.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 è più piccolo o più grande di quanto accetti la stampante.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 non è tra le scelte elencate nel file PPD della stampante.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: CUPS non conosce questo valore per %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>Il server di stampa %1 richiede nome utente e password, e non ne ha ricevuti di validi.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>Il server di stampa %1 ha smesso di rispondere: riprovare quando sarà tornato.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>nastro esaurito</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>carta esaurita</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>serve un altro nastro</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>serve altra carta</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>poco nastro rimasto</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>poca carta rimasta</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>nastro inceppato</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>carta inceppata</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>il coperchio è aperto</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>uno sportello è aperto</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>nessuna cassetta inserita</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>manca il vassoio della carta</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>il vassoio di uscita è pieno</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>poco inchiostro rimasto</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inchiostro esaurito</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>poco toner rimasto</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>toner esaurito</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>in pausa</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>in pausa dopo questo lavoro</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>i nuovi lavori vengono trattenuti</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>spenta o non collegata</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>connessione in corso</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>il disco del server di stampa è pieno</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>manca una parte del driver</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>il server di stampa non si fida del suo driver</translation>
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
        <translation>La coda %1 non è raggiungibile (%2): scegliere un’altra stampante.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>La coda %1 non ha accettato il lavoro (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>Non è possibile scrivere il file %1 (%2): indicarne un altro.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>Il file %1 viene sostituito solo per intero, e accanto non si può scrivere nulla (%2): indicarne un altro.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>L’uscita (%1) è lo stesso file di %2, che viene solo letto: indicarne un’altra.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>Non è possibile caricare la parte di questo programma che disegna le pagine (%1): reinstallarlo.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>La descrizione di stampante %1 porta programmi o comandi propri, di cui nessuno garantisce: %2. Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>Non c’è una stampante predefinita: sceglierne una.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>Il server di stampa non conosce la coda %1: scegliere un’altra stampante.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>Il server di stampa %1 non risponde. Si riprova finché non risponde.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 richiama sé stesso senza fine e non è più stato interrogato.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 ha fatto attendere la finestra %2 s.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1: errore.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1: errore: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>Impossibile scrivere un file temporaneo (%1): verificare che la cartella dei file temporanei sia scrivibile e abbia spazio.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 viene passato così com’è al server di stampa, che forse sa che cosa farne.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>Il documento %1 è vuoto: indicare un file con qualcosa da stampare.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Comandi della stampante</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>la stampante è al lavoro</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>il programma che lo legge si è interrotto</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>La pagina %1 risulterebbe larga %2 mm e lunga %3 mm, e nessuno potrebbe leggerla. Scegliere un nastro più lungo, un margine più piccolo o meno pagine per etichetta.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>Il documento %1 è di un tipo che non può essere disposto sul nastro. Aprirlo in un programma che lo mostri, salvarlo da lì come PDF o PNG e stampare quel file.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>Il lavoro %1 non è riuscito: %2. Resta in coda: annullarlo o riavviarlo nelle impostazioni delle stampanti del desktop.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>Il lavoro %2-%1 può essere rimasto inviato a metà sul server: annullarlo nelle impostazioni delle stampanti del desktop.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>La stampante non ha un’opzione %1. Si intende %2?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>«%1» non è un elenco di pagine: scrivere 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>Non c’è una pagina %1: le pagine si contano da 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>Le pagine %1-%2 vanno all’indietro: scrivere %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>Il server di stampa fa al massimo %1 copie di un lavoro, non %2. Chiederne di meno.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>Il server di stampa non mette %1 pagine su un foglio (number-up). Scegliere uno di questi numeri: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>Il programma stampa una parte: la pagina corrente o la selezione.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>Non è possibile leggere il documento del programma (%1): stamparlo di nuovo, oppure salvarlo come PDF e stampare quello.</translation>
    </message>
</context>
</TS>
