<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>el programa terminó mientras este complemento se iniciaba; se probará de nuevo la próxima vez</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>el programa terminó mientras este complemento se iniciaba, y otra vez la vez siguiente; se probará de nuevo cuando el complemento cambie</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>no se puede cargar su código: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>su código no es lo que dicen sus metadatos</translation>
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
        <source>it failed while it was starting: %1</source>
        <translation>falló al iniciarse: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>falló al iniciarse</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La descripción de la impresora pide el complemento %1, que no está instalado. Se puede imprimir sin él.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>Se usa el complemento %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>El complemento %1 no se usa: %2. Se puede imprimir sin él; actualícelo o elimínelo.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 pertenece a otra persona</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>cualquiera puede escribir en %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>está hecho para otra interfaz de paneles (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>está hecho para una versión posterior de la interfaz de paneles (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>no tiene el archivo %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>su código no es un complemento que esta versión de Qt pueda cargar</translation>
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
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>otro programa espera a este complemento desde hace un minuto o más</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Ninguna página elegida</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Contando…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Cantidad desconocida</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>Es una cantidad poco habitual: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>Imprimir %n etiqueta</numerusform>
            <numerusform>Imprimir %n etiquetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>Imprimir %n hoja</numerusform>
            <numerusform>Imprimir %n hojas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Personalizado…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Re&amp;solver</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Resolver: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Elija otra cosa para una de ellas.</translation>
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
        <translation>Tamaño personalizado</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Tamaño nuevo</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>&amp;Guardados:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Para recordarlo</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;ombre:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Escriba las páginas así: 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Impares y pares</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Solo impares</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Solo pares</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>De ellas:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>La última página primero</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Copias una tras otra</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 en lugar de 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 es la más baja, 100 la más alta</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Prioridad:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Enseguida</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Cuando se libere</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>De día</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Por la tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>En el segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>En el tercer turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>El fin de semana</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>A una hora</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Hora de impresión</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Imprimir:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Facturación:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>El trabajo sigue sin esta ventana</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
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
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Llenar el papel y recortar el resto</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Como mejor quepa</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Girada a la izquierda</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Girada a la derecha</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Boca abajo</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Páginas por etiqueta:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Páginas por hoja:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Su orden:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>De izquierda a derecha, luego abajo</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>De derecha a izquierda, luego abajo</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Hacia abajo, luego de izquierda a derecha</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Hacia abajo, luego de derecha a izquierda</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Marco:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Línea simple</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Línea doble</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Se refiere a varias páginas en una</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Avisos</translation>
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
        <translation>Instalado en la impresora</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>El complemento %1 no se usa: %2. Se puede imprimir sin él.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>El complemento %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>El panel «%1» de %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>El complemento %1 envió una opción que ningún trabajo puede llevar y que se omitió: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Los paneles cambian %1 sin fin (%2): se imprime tal como está.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>El complemento %1 envía %2=%3, que la descripción de la impresora no conoce.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1: no pudo entregar sus valores</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1: no pudo restablecer sus valores</translation>
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
        <translation>La descripción de la impresora no indica ningún papel.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Personalizado…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Personalizado (%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>El servidor de impresión %1 quiere saber quién imprime.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>No se ha aceptado.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Se sustituirá el ajuste %1.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Ya hay un ajuste %1.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>Usar «%1»</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Valores de la impresora</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Como la última vez</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>A&amp;juste:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Guardar, renombrar o eliminar ajustes</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>S&amp;obrescribir</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renombrar…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Usar por &amp;defecto</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Imprimir con él cuando no se indica impresora</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Los ajustes pertenecen a una cola de impresión, y aquí no hay ninguna.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>Ya no hay ningún ajuste %1.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar ajuste</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renombrar ajuste</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar ajuste</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>¿Eliminar el ajuste %1? Otros programas también lo tienen y lo perderán.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
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
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>Las páginas del programa llegan después, compuestas para este tamaño.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
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
        <source>Printer Options</source>
        <translation>Opciones de la impresora</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Mostrar &amp;orden…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>El mismo trabajo como orden para el intérprete de órdenes</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Elija otra cosa para una de ellas.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Cambiar e im&amp;primir</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Imprimir de &amp;todos modos</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>La longitud de la cinta se fijó a mano en %1. ¿Sustituirla por la que se ajusta?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Co&amp;nfiguración:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>El trabajo se está imprimiendo.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>Todavía se está conectando con la impresora.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Elija primero una impresora.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>La impresora no ofrece opciones aquí.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>No disponible con esta impresora, esta cinta o los demás ajustes.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Vo&amp;lver a cargar</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Elija una impresora</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>La impresora ya no está.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Ayuda sobre esta página de ajustes</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1: conectando…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 no acepta los ajustes. No se imprimió nada.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>La unidad vale solo para esta ventana: no se puede escribir %1.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Esta impresora no tiene descripción: recibe lo que se imprime tal como está. Por eso no hay vista previa y no se sabe cuántas páginas saldrán.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Sin vista previa: la descripción de la impresora no indica ningún papel.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» está desactivado por «%2»: esta impresora, la cinta elegida u otro ajuste de allí no lo ofrece.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» está desactivado por «%2»: esta impresora no ofrece allí nada que elegir.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>«%1» no es compatible con lo que está ajustado en «%2».</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Preguntar de nuevo</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>El servidor de impresión no responde. Sus impresoras volverán cuando responda.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>No hay impresora predeterminada. Elija una impresora.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>La impresora %1 ya no está. Elija otra o espere a que vuelva: se conserva lo que ha ajustado.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>La descripción de la impresora %1 ha cambiado en el servidor. Vuelva a cargarla antes de imprimir.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>La impresora %1, que se usó la última vez, ya no está.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>En su lugar se toma la impresora %1.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>La impresora %1 se modificó en el servidor de impresión y, sin contraseña, no se miró su descripción. Vuelva a preguntar antes de imprimir.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (sin cola de impresión)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predeterminada)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>ya no está</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ubicación: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Una clase: imprime el trabajo la impresora que esté libre.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Encontrada en la red</translation>
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
        <translation>Buscar por nombre, descripción o ubicación</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Buscar impresoras</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>Guardar el trabajo en un archivo en lugar de imprimirlo</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Guardar como &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Guardar &amp;datos de impresora…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Guardar datos de impresora</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Datos de impresora (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Órdenes para el intérprete</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>El mismo trabajo con &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>Las mismas opciones con &amp;lp, que no compone nada:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Copiar la orden de %1</translation>
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
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>La unidad de las longitudes que se muestran aquí</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Milímetros</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Pulgadas</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unidad de longitud</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Milímetros</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>no indican el motivo</translation>
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
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 no figura entre las opciones del archivo PPD de la impresora.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>La opción %1 nunca llega al filtro de la impresora, porque el servidor de impresión la toma por su propio atributo %2. Dele otro nombre en el archivo PPD.</translation>
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
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Los filtros de la impresora se ejecutan sin aislamiento porque falta bubblewrap: instale el paquete bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Los filtros de la impresora se ejecutan sin aislamiento porque este equipo no lo permite (%1): permita que los usuarios creen espacios de nombres.</translation>
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
        <source>standard output</source>
        <translation>la salida estándar</translation>
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
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>El archivo PPD %1 está cortado: falta el final. Cópielo de nuevo.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>No se pueden reunir las páginas elegidas (%1): compruebe que el documento esté entero y que haya sitio para archivos temporales.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>«%1» pasa a «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>«%1» cambia de «%2» a «%3».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>«%1» no es compatible con «%2».</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 no son compatibles entre sí.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Alto</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>Los tamaños no se guardan porque no se puede escribir en %1.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Omita llaves sueltas y caracteres invisibles.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Escriba de %1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Escriba %1 caracteres o más.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Escriba de %1 a %2 cifras.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Escriba %1 cifras o más.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Escriba una longitud de %1 a %2 pulgadas.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Escriba una longitud de %1 a %2 mm.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Escriba un número entero de %1 a %2.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Escriba un número de %1 a %2.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>El valor de la opción %1 va entre llaves, que el servidor de impresión quita: dé a %1 un valor simple.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 no es un número que conozca el sistema de impresión: cada página va en su propia hoja.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>La opción %1 no cambia nada en la cinta: indique cómo van las páginas con print-scaling, orientation-requested, position y number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>el servidor de impresión no dice por qué</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>El servidor de impresión ya no informa del trabajo %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>El trabajo %1 ha fallado: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>El trabajo %1 se ha cancelado.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>El trabajo %1 está impreso.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>El trabajo %1 está retenido: espera a que se libere.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>El trabajo %1 espera: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>El trabajo %1 se está imprimiendo.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>El trabajo %1 espera detrás de otros: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>El trabajo %1 espera a la impresora.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>No se sabe qué ha sido del trabajo %1.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>No se puede cancelar el trabajo %1 (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>No se pueden guardar los ajustes para la próxima vez: no se puede escribir en %1.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>No se puede leer el archivo con sus ajustes, %1 (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>Son más opciones de las que CUPS guarda en un ajuste.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Una opción tiene un valor que CUPS no puede guardar en un ajuste.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>No se puede escribir el archivo con sus ajustes, %1 (%2): queda como estaba.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>General</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>El archivo %1 es demasiado grande para ser un PPD: indique un archivo PPD.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 no tiene ningún ajuste %2 suyo.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Ya hay un ajuste %1.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un ajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS no puede guardar un ajuste cuyo nombre tenga espacios, barras, comillas o alguno de # &lt; &gt;.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Este nombre es más largo de lo que CUPS puede guardar.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>La impresora ya no tiene la opción %1=%2 del ajuste. El ajuste la conserva hasta que lo sobrescriba.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>La impresora %1 no acepta trabajos.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>La impresora %1 no acepta trabajos: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>La impresora %1 está detenida. El trabajo espera a que continúe.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>La impresora %1 está detenida: %2. El trabajo espera a que continúe.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>La impresora %1 indica: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>La cola %1 no tiene una descripción de impresora con la que generar datos: guarde un PDF.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>El PDF está en %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>La cola %1 no acepta trabajos: consulte lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 no es un tamaño: escríbalo como Custom.ANCHOxLARGOmm, o con in, cm o pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: la impresora solo admite los tamaños que tiene.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 es menor o mayor de lo que admite la impresora.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 no figura entre las opciones del archivo PPD de la impresora.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: CUPS no conoce ese valor para %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>El servidor de impresión %1 pide un usuario y una contraseña, y no recibió ninguno que acepte.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>El servidor de impresión %1 ha dejado de responder: inténtelo de nuevo cuando vuelva.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>sin cinta</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>se necesita otra cinta</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>se necesita otro papel</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>queda poca cinta</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>cinta atascada</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>papel atascado</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>la cubierta está abierta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>una puerta está abierta</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>no hay casete puesto</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>falta la bandeja de papel</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>la bandeja de salida está llena</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>queda poca tinta</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sin tinta</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>queda poco tóner</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sin tóner</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>en pausa tras este trabajo</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>los trabajos nuevos se retienen</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>apagada o sin conexión</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>el disco del servidor de impresión está lleno</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>falta una parte de su controlador</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>el servidor de impresión no confía en su controlador</translation>
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
        <translation>No se puede acceder a la cola %1 (%2): elija otra impresora.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>La cola %1 no aceptó el trabajo (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>No se puede escribir el archivo %1 (%2): indique otro.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>El archivo %1 solo se reemplaza entero, y no se puede escribir nada a su lado (%2): indique otro.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>La salida (%1) es el mismo archivo que %2, que solo se lee: indique otra.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>No se puede cargar la parte de este programa que dibuja páginas (%1): instálelo de nuevo.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>La descripción de impresora %1 trae programas u órdenes propios de los que nadie responde: %2. No se ejecutó nada.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>No hay impresora predeterminada: elija una.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>El servidor de impresión no conoce la cola %1: elija otra impresora.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>El servidor de impresión %1 no responde. Se le pregunta de nuevo hasta que responda.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 se llama a sí mismo sin fin y no se le volvió a preguntar.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 hizo esperar a la ventana %2 s.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 falló.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 falló: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>No se puede escribir un archivo temporal (%1): compruebe que se puede escribir en la carpeta de archivos temporales y que hay espacio.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 se entrega tal como está al servidor de impresión, que quizá sepa qué hacer con él.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>El documento %1 está vacío: indique un archivo con algo que imprimir.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Comandos de la impresora</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>la impresora está trabajando</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>el programa que lo lee se ha interrumpido</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>La página %1 quedaría de %2 mm de ancho y %3 mm de largo, lo que nadie puede leer. Elija una cinta más larga, un margen menor o menos páginas por etiqueta.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>El documento %1 es de un tipo que no se puede componer en la cinta. Ábralo en un programa que lo muestre, guárdelo desde allí como PDF o PNG e imprima ese archivo.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>El trabajo %1 ha fallado: %2. Sigue en la cola: cancélelo o reinícielo en la configuración de impresoras del escritorio.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>El trabajo %2-%1 puede haber quedado a medias en el servidor: cancélelo en la configuración de impresoras del escritorio.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>La impresora no tiene ninguna opción %1. ¿Quiso decir %2?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>«%1» no es una lista de páginas: escríbalas como 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>No hay página %1: las páginas se cuentan desde 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>Las páginas %1-%2 van hacia atrás: escriba %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>El servidor de impresión hace como máximo %1 copias de un trabajo, no %2. Pida menos.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>El servidor de impresión no pone %1 páginas en una hoja (number-up). Elija uno de estos números: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>El programa imprime una parte: su página actual o lo seleccionado.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>No se puede leer el documento del programa (%1): imprímalo otra vez, o guárdelo como PDF e imprima ese archivo.</translation>
    </message>
</context>
</TS>
