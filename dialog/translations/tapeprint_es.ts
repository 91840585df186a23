<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Shrink when too large</source>
        <translation>Reducir si es demasiado grande</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Ajustar a la cinta</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Llenar la cinta y cortar el resto</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Tamaño original</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Lado largo a lo largo de la cinta</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>A lo largo de la cinta</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>A lo ancho de la cinta</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>A lo largo de la cinta, al revés</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>A lo ancho de la cinta, al revés</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>A lo largo de la cinta:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>A lo ancho de la cinta:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
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
        <translation>El complemento %1 no pudo crear su panel. Se puede imprimir sin él.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>El panel «%1» de %2 no tiene vista. Sus valores se imprimen tal como están definidos.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>El panel «%1» no pudo entregar sus valores: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>El panel «%1» no pudo restablecer sus valores: %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Etiqueta anterior</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Etiqueta siguiente</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etiqueta %1 de %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Parte de la página queda cortada.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Esta página está vacía.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>La tinta de este color apenas se ve en esta cinta.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n hoja</numerusform>
            <numerusform>%n hojas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 de cinta</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n etiqueta</numerusform>
            <numerusform>%n etiquetas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Sin vista previa: %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>I&amp;mpresora:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>Cin&amp;ta:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>Pa&amp;nel:</source>
        <translation>Pa&amp;nel:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Volver a los valores que había al abrir el diálogo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (sin cola de impresión)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Este panel no tiene vista.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Ajustar longitud</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Dar a la cinta la longitud que necesita el contenido, con ambos márgenes</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>Mantener a&amp;justada</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>No hay nada dibujado en el documento: la cinta conserva su longitud.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>El documento necesita más cinta de la que admite la impresora: se reduce.</translation>
    </message>
    <message>
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>La longitud de la cinta se fijó a mano en %1 mm. ¿Sustituirla por la que se ajusta?</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Vista previa de la cinta</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Longitud %1, ancho %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Vista previa del papel</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; parte de la página queda cortada</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>no indican el motivo</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>No se pueden escribir los datos de impresión en %1 (%2). Libere espacio o indique otro archivo con --output.</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>No se pueden iniciar los filtros (%1). Compruebe que CUPS esté instalado por completo.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>Los filtros de %1 no pudieron imprimir el documento %2: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Falta el programa cupsfilter. Instale el paquete cups.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>No se puede escribir el archivo %1 (%2). Indique otro con --output.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>Los filtros de %1 no generaron nada a partir del documento. Compruebe que tenga páginas para imprimir.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>No se puede leer el documento %1 (%2). Indique un archivo legible.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>El servidor de impresión no aceptó el documento %1 (%2). Compruebe que la cola imprima este tipo de documento.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>No se puede acceder a la cola %1 (%2). La orden lpstat -e muestra las colas que hay.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>La cola %1 no aceptó el trabajo (%2). Consulte lpstat -p %1 -l.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 no figura entre las opciones del archivo PPD de la impresora.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>La opción %1 nunca llega al filtro de la impresora, porque el servidor de impresión la toma por su propio atributo %2. Dele otro nombre en el archivo PPD.</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>su código no es un complemento que esta versión de Qt pueda cargar</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>está hecho para otra interfaz de paneles (%1)</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>sus metadatos no indican ninguna clase principal</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>no ofrece paneles de impresora</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>no tiene el archivo %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>no se puede cargar su código: %1</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>no tiene la clase principal %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>no puede funcionar en este sistema</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>El complemento %1 no se usa: %2. Se puede imprimir sin él; actualícelo o elimínelo.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>No se puede leer el archivo PPD %1 (%2). Indique un archivo PPD legible.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>El archivo PPD %1 no es válido, línea %2: %3. Corrija el archivo o indique otro.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>El servidor de impresión %1 no responde. Inícielo, indique otro en CUPS_SERVER o imprima sin servidor con --ppd ARCHIVO.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>No hay ninguna impresora predeterminada. Indique una cola de impresión con -d COLA o imprima sin cola con --ppd ARCHIVO.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>El servidor de impresión no conoce la cola %1. La orden lpstat -e muestra las colas que hay.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>No se puede obtener del servidor de impresión el archivo PPD de la cola %1 (%2). Compruebe que la cola esté configurada.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>de la cola %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>imprimiéndose</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviado</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>Los datos de impresión están en %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Trabajo %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 está dañado: no se puede leer ninguna página.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 no es un documento PDF.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 está protegido con contraseña: guárdelo sin ella e imprima esa copia.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 no tiene ninguna página.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>El panel «%1» mantiene %2 dentro de sus límites y pasos: en lugar de %3, el trabajo lleva %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 no figura entre las opciones del archivo PPD de la impresora: el trabajo lleva %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La descripción de la impresora pide el complemento %1, que no está instalado. Se puede imprimir sin él.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Los filtros de la impresora se ejecutan sin aislamiento porque falta bubblewrap: instale el paquete bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Los filtros de la impresora se ejecutan sin aislamiento porque este equipo no lo permite (%1): permita que los usuarios creen espacios de nombres.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>No se puede escribir un archivo temporal (%1). Libere espacio en la carpeta de archivos temporales.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>Los filtros no pudieron generar páginas del documento %1: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>La imagen %1 (%2 x %3 puntos) no se puede descomprimir (%4). Redúzcala o imprímala como PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>La imagen %1 está dañada (%2). Vuelva a crearla o indique otra.</translation>
    </message>
    <message>
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>El documento %1 no se puede componer en la cinta. Imprima un PDF, un archivo PostScript, una imagen o texto sin formato.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>El documento %1 está protegido con contraseña. Guárdelo sin ella e imprima ese.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>El documento %1 está dañado (%2). Vuelva a crearlo o indique otro.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>El documento %1 no tiene páginas. Indique uno con algo que imprimir.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>No se pueden componer las etiquetas (%1). Compruebe que el documento está completo y que hay espacio para archivos temporales.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>La descripción de esta impresora no admite páginas de la longitud elegida. La página sigue midiendo %1 mm de largo y la longitud queda a cargo del controlador.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>El sistema de impresión convierte una longitud tan próxima a la de la cinta en esa misma: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>Los márgenes no dejan cinta en la que imprimir. Alargue la cinta o reduzca el margen.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>No se ha elegido ninguna página del documento. Cambie el intervalo de páginas.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>El panel «%1» no ofrece %2=%3, que la impresora tiene: el trabajo lleva %4=%5.</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 pulg.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>El documento %1 ya no está: no se imprimió nada. Vuelva a ponerlo o abra otro.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>El documento %1 ha cambiado desde que se abrió: no se imprimió nada. Ábralo de nuevo.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>es más grande que cualquier descripción de impresora</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>El archivo PPD %1 no se puede guardar en un archivo temporal (%2): libere espacio allí.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>Se detuvo la impresión.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>Los filtros de %1 no terminaban con el documento %2 y se detuvieron.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>La descripción de impresora %1 es de confianza y ejecuta programas u órdenes propios: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>ya hay un archivo con este nombre</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>El archivo %1 solo se reemplaza entero, y no se puede escribir nada a su lado (%2): indique otro con --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>la salida estándar</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>La salida (%1) es el mismo archivo que %2, que solo se lee: indique otra con --output.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>la entrada estándar</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>es una tubería o un dispositivo</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>La descripción de impresora %1 trae programas u órdenes propios de los que nadie responde: %2. No se ejecutó nada. Si confía en su autor, repita con --trust-ppd.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>El PPD de la cola %1 no se puede guardar en un archivo temporal (%2): libere espacio allí.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>Los datos de la impresora fueron a la salida estándar (%1 bytes).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>La página %1 del documento %2 no tiene tamaño. Omítala o vuelva a crearla.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>El sistema de impresión convierte una longitud tan próxima a la de otro papel en esa misma: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>se necesitarían más de %1 MiB de memoria</translation>
    </message>
    <message>
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>No se pueden escribir las páginas del documento %1 (%2). Libere espacio en la carpeta de archivos temporales.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>El archivo PPD %1 está cortado: falta el final. Cópielo de nuevo.</translation>
    </message>
</context>
</TS>
