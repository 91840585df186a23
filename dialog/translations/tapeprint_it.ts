<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Dimensione:</translation>
    </message>
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
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Direzione:</translation>
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
        <translation>Il plug-in %1 non ha potuto creare il suo pannello. La stampa funziona anche senza.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Il pannello &quot;%1&quot; di %2 non ha una vista. I suoi valori vengono stampati così come sono definiti.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>Il pannello &quot;%1&quot; non ha potuto consegnare i suoi valori: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>Il pannello &quot;%1&quot; non ha potuto ripristinare i suoi valori: %2</translation>
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
        <source>Pa&amp;nel:</source>
        <translation>Pann&amp;ello:</translation>
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
        <source>%1 (no print queue)</source>
        <translation>%1 (nessuna coda di stampa)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Printing</source>
        <translation>Stampa in corso</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
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
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>La lunghezza del nastro è stata impostata a mano su %1 mm. Sostituirla con quella adatta?</translation>
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
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>senza indicarne il motivo</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>Impossibile scrivere i dati di stampa in %1 (%2). Liberare spazio o indicare un altro file con --output.</translation>
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
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>Impossibile scrivere il file %1 (%2). Indicarne un altro con --output.</translation>
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
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>La coda %1 non ha accettato il lavoro (%2). Vedere lpstat -p %1 -l.</translation>
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
        <source>its code is no plug-in that this Qt can load</source>
        <translation>il suo codice non è un plug-in che questa versione di Qt possa caricare</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>è fatto per un’altra interfaccia di pannelli (%1)</translation>
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
        <source>it has no file %1</source>
        <translation>non contiene il file %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>il suo codice non può essere caricato: %1</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Il plug-in %1 non viene usato: %2. La stampa funziona anche senza; aggiornarlo o rimuoverlo.</translation>
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
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>Il server di stampa %1 non risponde. Avviarlo, indicarne un altro in CUPS_SERVER o stampare senza server con --ppd FILE.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>Non c’è una stampante predefinita. Indicare una coda di stampa con -d CODA o stampare senza coda con --ppd FILE.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>Il server di stampa non conosce la coda %1. Il comando lpstat -e elenca le code presenti.</translation>
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
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La descrizione della stampante richiede il plug-in %1, che non è installato. La stampa funziona anche senza.</translation>
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
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>Impossibile scrivere un file temporaneo (%1). Liberare spazio nella cartella dei file temporanei.</translation>
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
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>Il documento %1 non può essere disposto sul nastro. Stampare un PDF, un file PostScript, un’immagine o testo semplice.</translation>
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
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 pollici</translation>
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
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>Il file %1 viene sostituito solo per intero e accanto non si può scrivere nulla (%2): indicarne un altro con --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>lo standard output</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>L’output (%1) è lo stesso file di %2, che viene solo letto: indicarne un altro con --output.</translation>
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
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>La descrizione di stampante %1 porta programmi o comandi propri, di cui nessuno risponde: %2. Non è stato eseguito nulla. Se ci si fida dell’autore, ripetere con --trust-ppd.</translation>
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
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>Impossibile scrivere le pagine del documento %1 (%2). Liberare spazio nella cartella dei file temporanei.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Il file PPD %1 è troncato: manca la fine. Copiarlo di nuovo.</translation>
    </message>
</context>
</TS>
