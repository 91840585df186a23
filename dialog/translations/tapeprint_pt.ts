<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Tamanho:</translation>
    </message>
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
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Direção:</translation>
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
        <translation>A extensão %1 não conseguiu criar o seu painel. É possível imprimir sem ele.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>O painel “%1” de %2 não tem vista. Os seus valores são impressos tal como estão definidos.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>O painel “%1” não conseguiu entregar os seus valores: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>O painel “%1” não conseguiu repor os seus valores: %2</translation>
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
        <source>Pa&amp;nel:</source>
        <translation>Pai&amp;nel:</translation>
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
        <source>%1 (no print queue)</source>
        <translation>%1 (sem fila de impressão)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Printing</source>
        <translation>Impressão</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>A imprimir…</translation>
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
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>O comprimento da fita foi definido à mão em %1 mm. Substituí-lo pelo que se ajusta?</translation>
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
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>sem indicação do motivo</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>Não é possível escrever os dados de impressão em %1 (%2). Liberte espaço ou indique outro ficheiro com --output.</translation>
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
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>Não é possível escrever o ficheiro %1 (%2). Indique outro com --output.</translation>
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
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>A fila %1 não aceitou o trabalho (%2). Consulte lpstat -p %1 -l.</translation>
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
        <source>its code is no plug-in that this Qt can load</source>
        <translation>o seu código não é uma extensão que esta versão do Qt consiga carregar</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>foi feita para outra interface de painéis (%1)</translation>
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
        <source>it has no file %1</source>
        <translation>não tem o ficheiro %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>não é possível carregar o seu código: %1</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>A extensão %1 não é usada: %2. É possível imprimir sem ela; atualize-a ou remova-a.</translation>
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
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>O servidor de impressão %1 não responde. Inicie-o, indique outro em CUPS_SERVER ou imprima sem servidor com --ppd FICHEIRO.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>Não há nenhuma impressora predefinida. Indique uma fila de impressão com -d FILA ou imprima sem fila com --ppd FICHEIRO.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>O servidor de impressão não conhece a fila %1. O comando lpstat -e mostra as filas existentes.</translation>
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
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>A descrição da impressora pede a extensão %1, que não está instalada. É possível imprimir sem ela.</translation>
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
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>Não é possível gravar um ficheiro temporário (%1). Liberte espaço na pasta dos ficheiros temporários.</translation>
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
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>O documento %1 não pode ser disposto na fita. Imprima um PDF, um ficheiro PostScript, uma imagem ou texto simples.</translation>
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
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 pol.</translation>
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
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>O ficheiro %1 só é substituído por inteiro, e nada pode ser escrito ao lado dele (%2): indique outro com --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>a saída padrão</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>A saída (%1) é o mesmo ficheiro que %2, que só é lido: indique outra com --output.</translation>
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
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>A descrição de impressora %1 traz programas ou comandos próprios, pelos quais ninguém responde: %2. Nada foi executado. Se confia no autor, repita com --trust-ppd.</translation>
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
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>Não é possível gravar as páginas do documento %1 (%2). Liberte espaço na pasta dos ficheiros temporários.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>O ficheiro PPD %1 está truncado: falta o fim. Copie-o de novo.</translation>
    </message>
</context>
</TS>
