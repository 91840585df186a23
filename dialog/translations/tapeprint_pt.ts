<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>o programa terminou enquanto esta extensão arrancava; será tentada de novo da próxima vez</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>o programa terminou enquanto esta extensão arrancava, e outra vez a seguir; será tentada de novo quando a extensão mudar</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>não é possível carregar o seu código: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>o seu código não é o que os metadados dizem</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>não tem a classe principal %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>não pode funcionar neste sistema</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>falhou ao arrancar: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>falhou ao arrancar</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>A descrição da impressora pede a extensão %1, que não está instalada. É possível imprimir sem ela.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>A extensão %1 é usada em vez de %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>A extensão %1 não é usada: %2. É possível imprimir sem ela; atualize-a ou remova-a.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>não é possível ler %1</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 pertence a outra pessoa</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>qualquer pessoa pode escrever em %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>foi feita para outra interface de painéis (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>foi feita para uma versão posterior da interface de painéis (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>não tem o ficheiro %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>o seu código não é uma extensão que esta versão do Qt consiga carregar</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>os seus metadados não indicam nenhuma classe principal</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>não oferece painéis de impressora</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>outro programa espera por esta extensão há um minuto ou mais</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Nenhuma página escolhida</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>A contar…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Quantidade desconhecida</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>É uma quantidade invulgar: %1.</translation>
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
            <numerusform>Imprimir %n folha</numerusform>
            <numerusform>Imprimir %n folhas</numerusform>
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
        <translation>Escolha outra coisa para uma delas.</translation>
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
        <translation>Tamanho personalizado</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Tamanho novo</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>&amp;Guardados:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Para o guardar</translation>
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
        <translation>Título:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Escreva as páginas assim: 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Ímpares e pares</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Só ímpares</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Só pares</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Destas:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Cópias uma a seguir à outra</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 em vez de 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 é a mais baixa, 100 a mais alta</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Prioridade:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>De imediato</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quando for libertado</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>De dia</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Ao fim do dia</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>À noite</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>No segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>No terceiro turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>No fim de semana</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>A uma hora</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Hora de impressão</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Imprimir:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Faturação:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>A imprimir</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>O trabalho continua sem esta janela</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>Reduzir se for demasiado grande</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Ajustar à fita</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Preencher a fita, cortar o resto</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Tamanho original</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Lado maior ao longo da fita</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Ao longo da fita</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>Atravessado na fita</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Ao longo da fita, ao contrário</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>Atravessado na fita, ao contrário</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Ao longo da fita:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>Transversalmente à fita:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Em baixo</translation>
    </message>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Ajustar ao papel</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Encher o papel e cortar o resto</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Direção:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Como melhor couber</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Rodada para a esquerda</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Rodada para a direita</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>De pernas para o ar</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Páginas por etiqueta:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Páginas por folha:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Ordem:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Da esquerda para a direita, depois para baixo</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Da direita para a esquerda, depois para baixo</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Para baixo, depois da esquerda para a direita</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Para baixo, depois da direita para a esquerda</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Moldura:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Linha simples</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Linha dupla</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Diz respeito a várias páginas numa só</translation>
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
        <translation>Instalado na impressora</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>A extensão %1 não conseguiu criar o seu painel. É possível imprimir sem ele.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>O painel “%1” de %2 não tem vista. Os seus valores são impressos tal como estão definidos.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>A extensão %1 não é usada: %2. É possível imprimir sem ela.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>A extensão %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>O painel “%1” de %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>A extensão %1 enviou uma opção que nenhum trabalho pode levar e que foi omitida: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Os painéis mudam %1 sem fim (%2): imprime-se com o valor atual.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>A extensão %1 envia %2=%3, que a descrição da impressora não conhece.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1: não foi possível entregar os valores</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1: não foi possível repor os valores</translation>
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
        <translation>A descrição da impressora não indica papel.</translation>
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
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>O servidor de impressão %1 quer saber quem imprime.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>Isso não foi aceite.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilizador:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Palavra-passe:</translation>
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
        <translation>A predefinição %1 será substituída.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Já existe uma predefinição %1.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>Usar “%1”</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Valores da impressora</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Como da última vez</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>Pre&amp;definição:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Guardar, mudar o nome ou eliminar predefinições</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>S&amp;ubstituir</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Mudar o nome…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Tornar pre&amp;definida</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Imprimir com ela quando não se indica impressora</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>As predefinições pertencem a uma fila de impressão, e aqui não há nenhuma.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterada)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>A predefinição %1 já não existe.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar predefinição</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Mudar o nome da predefinição</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar predefinição</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>Eliminar a predefinição %1? Outros programas também a têm e vão perdê-la.</translation>
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
        <translation>Etiqueta seguinte</translation>
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
        <translation>Parte da página é cortada.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Esta página está vazia.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>A tinta desta cor é difícil de ver nesta fita.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n folha</numerusform>
            <numerusform>%n folhas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 de fita</translation>
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
        <translation>Sem pré-visualização: %1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>As páginas do programa vêm depois, compostas para este tamanho.</translation>
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
        <translation>Página seguinte</translation>
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
        <translation>I&amp;mpressora:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Fita:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Cópias:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Repor</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Voltar aos valores existentes quando a janela foi aberta</translation>
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
        <translation>Este painel não tem vista.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Mais opções</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Ajustar comprimento</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Tornar a fita tão longa quanto o conteúdo precisa, com as duas margens</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>Man&amp;ter ajustado</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposição</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Não há nada desenhado no documento: a fita mantém o comprimento.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>O documento precisa de mais fita do que a impressora aceita: é reduzido.</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>Opções da impressora</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Mostrar c&amp;omando…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>O mesmo trabalho como comando para a linha de comandos</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Escolha outra coisa para uma delas.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Alterar e im&amp;primir</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Imprimir me&amp;smo assim</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>O comprimento da fita foi definido à mão em %1. Substituí-lo pelo que se ajusta?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Defi&amp;nições:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>O trabalho está a ser impresso.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>Ainda se está a ligar à impressora.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Escolha primeiro uma impressora.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>A impressora não oferece escolha aqui.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Não disponível com esta impressora, esta fita ou as outras definições.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Recarre&amp;gar</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>A ligar…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Escolha uma impressora</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>A impressora já não existe.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Ajuda sobre esta página de definições</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – a ligar…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 não aceita as definições. Nada foi impresso.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>A unidade vale apenas para esta janela: não é possível gravar %1.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Esta impressora não tem descrição: recebe o que é impresso tal como está. Por isso não há pré-visualização e não se sabe quantas páginas saem.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Sem pré-visualização: a descrição da impressora não indica nenhum papel.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» está desativado por «%2»: esta impressora, a fita escolhida ou outra definição não o oferece.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>«%1» está desativado por «%2»: esta impressora não oferece aí nada para escolher.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>«%1» não é compatível com o que está definido em «%2».</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Perguntar de novo</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>A imprimir…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>A cancelar…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>A enviar…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>O servidor de impressão não responde. As impressoras voltam quando ele responder.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>Não há impressora predefinida. Escolha uma impressora.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>A impressora %1 já não existe. Escolha outra ou espere que volte: o que definiu mantém-se.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>A descrição da impressora %1 mudou no servidor. Recarregue-a antes de imprimir.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>A impressora %1, usada da última vez, já não existe.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>Em seu lugar é usada a impressora %1.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>A impressora %1 foi alterada no servidor de impressão e, sem palavra-passe, a sua descrição não foi consultada. Pergunte de novo antes de imprimir.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (sem fila de impressão)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predefinida)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>já não existe</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Localização: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Uma classe: imprime a impressora que estiver livre.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Encontrada na rede</translation>
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
        <translation>Procurar por nome, descrição ou localização</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Procurar impressoras</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impressoras</translation>
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
        <translation>Guardar o trabalho num ficheiro em vez de o imprimir</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Guardar como &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Guardar &amp;dados da impressora…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Guardar dados da impressora</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Dados da impressora (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Comandos para a linha de comandos</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>O mesmo trabalho com &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>As mesmas opções com &amp;lp, que não compõe nada:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Copiar o comando de %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Pré-visualização da fita</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Comprimento %1, largura %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Pré-visualização do papel</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; parte da página é cortada</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>A unidade dos comprimentos aqui mostrados</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Milímetros</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Polegadas</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unidade de comprimento</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Polegadas</translation>
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
        <translation>sem indicação do motivo</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>Não é possível iniciar os filtros (%1). Verifique se o CUPS está totalmente instalado.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>Os filtros de %1 não conseguiram imprimir o documento %2: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Falta o programa cupsfilter. Instale o pacote cups.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>Os filtros de %1 não produziram nada a partir do documento. Verifique se tem páginas para imprimir.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Não é possível ler o documento %1 (%2). Indique um ficheiro legível.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>O servidor de impressão não aceitou o documento %1 (%2). Verifique se a fila imprime este tipo de documento.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>Não é possível aceder à fila %1 (%2). O comando lpstat -e mostra as filas existentes.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 não consta das escolhas do ficheiro PPD da impressora.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>A opção %1 nunca chega ao filtro da impressora, porque o servidor de impressão a toma pelo seu próprio atributo %2. Dê-lhe outro nome no ficheiro PPD.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Não é possível ler o ficheiro PPD %1 (%2). Indique um ficheiro PPD legível.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>O ficheiro PPD %1 não é válido, linha %2: %3. Corrija o ficheiro ou indique outro.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>Não é possível obter do servidor de impressão o ficheiro PPD da fila %1 (%2). Verifique se a fila está configurada.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>da fila %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>em espera</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>retido</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>a imprimir</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>parado</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>interrompido</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>concluído</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviado</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>Os dados de impressão estão em %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Trabalho %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Não é um ficheiro normal.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 está danificado: nenhuma página pode ser lida.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 não é um documento PDF.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 está protegido por palavra-passe: guarde-o sem ela e imprima essa cópia.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 não tem páginas.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>O painel “%1” mantém %2 dentro dos seus limites e passos: em vez de %3, o trabalho leva %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 não consta das escolhas do ficheiro PPD da impressora: o trabalho leva %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Os filtros da impressora são executados sem isolamento, porque falta o bubblewrap: instale o pacote bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Os filtros da impressora são executados sem isolamento, porque esta máquina não o permite (%1): deixe os utilizadores criar espaços de nomes.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>Os filtros não conseguiram criar páginas do documento %1: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>Não é possível descomprimir a imagem %1 (%2 x %3 pontos) (%4). Reduza-a ou imprima-a como PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>A imagem %1 está danificada (%2). Crie-a de novo ou indique outra.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>O documento %1 está protegido por palavra-passe. Guarde-o sem ela e imprima esse.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>O documento %1 está danificado (%2). Crie-o de novo ou indique outro.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>O documento %1 não tem páginas. Indique um que tenha algo para imprimir.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Não é possível dispor as etiquetas (%1). Verifique se o documento está completo e se há espaço para ficheiros temporários.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>A descrição desta impressora não aceita páginas com o comprimento escolhido. A página continua com %1 mm e o comprimento fica a cargo do controlador.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>O sistema de impressão transforma um comprimento tão próximo do da própria fita neste: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>As margens não deixam fita para imprimir. Aumente o comprimento da fita ou reduza a margem.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Nenhuma página do documento está escolhida. Altere o intervalo de páginas.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>O painel “%1” não oferece %2=%3, que a impressora tem: o trabalho leva %4=%5.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>O documento %1 desapareceu: nada foi impresso. Reponha-o ou abra outro.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>O documento %1 mudou desde que foi aberto: nada foi impresso. Abra-o de novo.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>é maior do que qualquer descrição de impressora</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>O ficheiro PPD %1 não pode ser guardado num ficheiro temporário (%2): liberte espaço.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>A impressão foi parada.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>Os filtros de %1 não terminavam com o documento %2 e foram parados.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>A descrição de impressora %1 é de confiança e executa programas ou comandos próprios: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>já existe um ficheiro com este nome</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>a saída padrão</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>a entrada padrão</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>é um pipe ou um dispositivo</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>O PPD da fila %1 não pode ser guardado num ficheiro temporário (%2): liberte espaço.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>Os dados da impressora foram para a saída padrão (%1 bytes).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>A página %1 do documento %2 não tem tamanho. Omita-a ou crie-a de novo.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>O sistema de impressão transforma um comprimento tão próximo do de outro papel neste: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>seriam necessários mais de %1 MiB de memória</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>O ficheiro PPD %1 está truncado: falta o fim. Copie-o de novo.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Não é possível juntar as páginas escolhidas (%1): verifique se o documento está inteiro e se há espaço para ficheiros temporários.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>“%1” passa a “%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>“%1” muda de “%2” para “%3”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1” não é compatível com “%2”.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 não são compatíveis entre si.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Altura</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>Os tamanhos não são guardados porque não se pode escrever em %1.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Omita chavetas soltas e caracteres invisíveis.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Indique de %1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Indique %1 caracteres ou mais.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Indique de %1 a %2 algarismos.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Indique %1 algarismos ou mais.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Indique um comprimento de %1 a %2 polegadas.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Indique um comprimento de %1 a %2 mm.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Indique um número inteiro de %1 a %2.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Indique um número de %1 a %2.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>O valor da opção %1 está entre chavetas, que o servidor retira: dê a %1 um valor simples.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 não é um número que o sistema de impressão conheça: cada página fica na sua folha.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>A opção %1 não altera nada na fita: indique a disposição com print-scaling, orientation-requested, position e number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>o servidor de impressão não diz porquê</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>O servidor de impressão já não informa sobre o trabalho %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>O trabalho %1 falhou: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>O trabalho %1 foi cancelado.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>O trabalho %1 está impresso.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>O trabalho %1 está retido: espera até ser libertado.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>O trabalho %1 espera: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>O trabalho %1 está a ser impresso.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>O trabalho %1 espera atrás de outros: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>O trabalho %1 espera pela impressora.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>Não se sabe o que aconteceu ao trabalho %1.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>Não é possível cancelar o trabalho %1 (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>Não é possível guardar as definições para a próxima vez: não se pode escrever em %1.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um ficheiro</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>é demasiado grande</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>Não é possível ler o ficheiro das suas predefinições, %1 (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>São mais opções do que o CUPS guarda numa predefinição.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Uma opção tem um valor que o CUPS não pode guardar numa predefinição.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>Não é possível escrever o ficheiro das suas predefinições, %1 (%2): fica como estava.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>Geral</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>O ficheiro %1 é demasiado grande para um PPD: indique um ficheiro PPD.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 não tem nenhuma predefinição %2 sua.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Já existe uma predefinição %1.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Uma predefinição precisa de um nome.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>O CUPS não pode guardar uma predefinição cujo nome tenha espaços, barras, aspas ou um de # &lt; &gt;.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Este nome é mais comprido do que o CUPS pode guardar.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>Esta impressora já não tem a opção %1=%2 da predefinição. A predefinição conserva-a até a substituir.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>A imprimir</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parada</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>não aceita trabalhos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>A impressora %1 não aceita trabalhos.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>A impressora %1 não aceita trabalhos: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>A impressora %1 está parada. O trabalho espera até que continue.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>A impressora %1 está parada: %2. O trabalho espera até que continue.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>A impressora %1 indica: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>A fila %1 não tem uma descrição de impressora para criar dados: guarde antes um PDF.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>O PDF está em %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>A fila %1 não aceita trabalhos: consulte lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 não é um tamanho: escreva Custom.LARGURAxCOMPRIMENTOmm, ou com in, cm ou pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: a impressora só aceita os tamanhos que tem.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 é menor ou maior do que a impressora aceita.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 não consta das escolhas do ficheiro PPD da impressora.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: o CUPS não conhece este valor para %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>O servidor de impressão %1 pede um nome de utilizador e uma palavra-passe, e não recebeu nenhuns que aceite.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>O servidor de impressão %1 deixou de responder: tente de novo quando ele voltar.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>sem fita</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sem papel</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>é preciso outra fita</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>é preciso outro papel</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>resta pouca fita</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>resta pouco papel</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>fita encravada</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>papel encravado</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>a tampa está aberta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>uma porta está aberta</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>sem cassete colocada</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>falta o tabuleiro de papel</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>o tabuleiro de saída está cheio</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>resta pouca tinta</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sem tinta</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>resta pouco toner</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sem toner</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>em pausa</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>em pausa depois deste trabalho</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>os trabalhos novos ficam retidos</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>desligada ou sem ligação</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>não responde</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>a ligar</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>o disco do servidor de impressão está cheio</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>falta uma parte do controlador</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>o servidor de impressão não confia no controlador</translation>
    </message>
    <message>
        <source>in</source>
        <comment>the sign of the inch</comment>
        <translation>pol</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <comment>a length in feet</comment>
        <translation>%1 pés</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): choose another printer.</source>
        <translation>Não é possível aceder à fila %1 (%2): escolha outra impressora.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>A fila %1 não aceitou o trabalho (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>Não é possível gravar o ficheiro %1 (%2): indique outro.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>O ficheiro %1 só é substituído por inteiro, e nada pode ser escrito ao lado dele (%2): indique outro.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>A saída (%1) é o mesmo ficheiro que %2, que só é lido: indique outra.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>Não é possível carregar a parte deste programa que desenha páginas (%1): instale-o de novo.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>A descrição de impressora %1 traz programas ou comandos próprios, pelos quais ninguém responde: %2. Nada foi executado.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>Não há impressora predefinida: escolha uma.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>O servidor de impressão não conhece a fila %1: escolha outra impressora.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>O servidor de impressão %1 não responde. Volta a ser contactado até responder.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 chama-se a si mesmo sem fim e não voltou a ser consultado.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 fez a janela esperar %2 s.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 falhou.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 falhou: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>Não é possível escrever um ficheiro temporário (%1): verifique se é possível escrever na pasta de ficheiros temporários e se há espaço.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 é entregue tal como está ao servidor de impressão, que talvez saiba o que fazer com ele.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>O documento %1 está vazio: indique um ficheiro com algo para imprimir.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Comandos da impressora</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>a impressora está a trabalhar</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>o programa que o lê foi interrompido</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>A página %1 ficaria com %2 mm de largura e %3 mm de comprimento, o que ninguém consegue ler. Escolha uma fita mais longa, uma margem menor ou menos páginas por etiqueta.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>O documento %1 é de um tipo que não pode ser disposto na fita. Abra-o num programa que o mostre, guarde-o a partir daí como PDF ou PNG e imprima esse ficheiro.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>O trabalho %1 falhou: %2. Continua na fila: cancele-o ou reinicie-o nas definições de impressoras do ambiente de trabalho.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>O trabalho %2-%1 pode ter ficado meio enviado no servidor: cancele-o nas definições de impressoras do ambiente de trabalho.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>A impressora não tem nenhuma opção %1. Será %2?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>«%1» não é uma lista de páginas: escreva 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>Não há página %1: as páginas contam-se a partir de 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>As páginas %1-%2 estão ao contrário: escreva %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>O servidor de impressão faz no máximo %1 cópias de um trabalho, não %2. Peça menos.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>O servidor de impressão não põe %1 páginas numa folha (number-up). Escolha um destes números: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>O programa imprime uma parte: a página atual ou a seleção.</translation>
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
        <translation>não é um ficheiro</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>é demasiado grande</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>Não é possível ler o documento do programa (%1): imprima-o outra vez, ou guarde-o como PDF e imprima esse ficheiro.</translation>
    </message>
</context>
</TS>
