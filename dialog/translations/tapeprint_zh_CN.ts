<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Shrink when too large</source>
        <translation>过大时缩小</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>适合标签带</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>填满标签带，裁去其余</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>原始大小</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>方向：</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>长边沿标签带</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>沿标签带</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>横跨标签带</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>沿标签带，上下颠倒</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>横跨标签带，上下颠倒</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>沿标签带：</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>横跨标签带：</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>插件 %1 无法创建其面板。没有该面板也可以打印。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>%2 的面板“%1”没有界面，其数值将按已有设置打印。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>面板“%1”无法提交其数值：%2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>面板“%1”无法恢复其数值：%2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>上一张标签</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>下一张标签</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>第 %1 张标签，共 %2 张</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>页面的一部分会被裁掉。</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>此页上没有任何内容。</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>此颜色的墨水在此标签带上不易看清。</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1，标签带 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n 张标签</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>没有预览：%1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>标签带(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>份数(&amp;C)：</translation>
    </message>
    <message>
        <source>Pa&amp;nel:</source>
        <translation>面板(&amp;N)：</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>还原(&amp;V)</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>恢复到打开对话框时的数值</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1（无打印队列）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>此面板没有界面。</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>更多选项</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>纸张(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>适配长度(&amp;F)</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>使标签带长度恰好容纳内容和两端边距</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>保持适配(&amp;K)</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>文档上没有任何内容：标签带长度保持不变。</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>文档所需标签带超出打印机上限：将缩小文档。</translation>
    </message>
    <message>
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>标签带长度已手动设为 %1 mm。要替换为合适的长度吗？</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>标签带预览</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>长度 %1，宽度 %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>纸张预览</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1；页面的一部分会被裁掉</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>未说明原因</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>无法将打印数据写入 %1（%2）。请腾出空间，或用 --output 指定其他文件。</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>无法启动过滤器（%1）。请检查 CUPS 是否已完整安装。</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>%1 的过滤器无法打印文档 %2：%3。</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>缺少程序 cupsfilter。请安装软件包 cups。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>无法写入文件 %1（%2）。请用 --output 指定其他文件。</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>%1 的过滤器没有从文档生成任何内容。请检查文档中是否有要打印的页面。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>无法读取文档 %1（%2）。请指定可读取的文件。</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>打印服务器没有接受文档 %1（%2）。请检查队列是否支持这种文档。</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>无法连接队列 %1（%2）。可用 lpstat -e 查看现有队列。</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>队列 %1 没有接受作业（%2）。请查看 lpstat -p %1 -l。</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 不在打印机 PPD 列出的选项之中。</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>选项 %1 无法到达打印机的过滤器，因为打印服务器将其当作自己的属性 %2。请在 PPD 中为其另取名称。</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>其代码不是此 Qt 可以加载的插件</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>它是为其他面板接口（%1）制作的</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>其元数据没有指明主类</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>它不提供打印机面板</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>它没有文件 %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>无法加载其代码：%1</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>它没有主类 %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>它无法在此系统上工作</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>未使用插件 %1：%2。没有该插件也可以打印；请更新或移除该插件包。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>无法读取 PPD 文件 %1（%2）。请指定可读取的 PPD 文件。</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>PPD 文件 %1 无效，第 %2 行：%3。请修正该文件或指定其他文件。</translation>
    </message>
    <message>
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>打印服务器 %1 没有响应。请启动它，或在 CUPS_SERVER 中指定其他服务器，或用 --ppd 文件 不经服务器打印。</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>没有默认打印机。请用 -d 队列 指定打印队列，或用 --ppd 文件 不经队列打印。</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>打印服务器没有队列 %1。可用 lpstat -e 查看现有队列。</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>无法从打印服务器获取队列 %1 的 PPD（%2）。请检查队列是否已设置。</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>（队列 %1）</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>已保留</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>正在处理</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>已中止</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>打印数据位于 %1（%2 字节）。</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>作业 %1-%2：%3。</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>它不是普通文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 已损坏：无法读取任何页面。</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 不是 PDF 文档。</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 受密码保护：请另存为不带密码的文件后再打印。</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 没有页面。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>面板“%1”将 %2 保持在其限值和步长之内：作业采用 %4，而不是 %3。</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 不在打印机 PPD 列出的选项之中：作业采用 %3=%4。</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>打印机描述要求插件 %1，但该插件未安装。没有该插件也可以打印。</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>由于缺少 bubblewrap，打印机的过滤器在没有隔离的情况下运行：请安装软件包 bubblewrap。</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>由于这台计算机不允许（%1），打印机的过滤器在没有隔离的情况下运行：请允许用户创建命名空间。</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>无法写入临时文件（%1）。请在临时文件夹中腾出空间。</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>过滤器无法将文档 %1 转换为页面：%2。</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>图片 %1（%2 x %3 点）无法解压（%4）。请缩小图片，或将其打印为 PDF。</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>图片 %1 已损坏（%2）。请重新生成或指定其他图片。</translation>
    </message>
    <message>
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>文档 %1 无法排在标签带上。请打印 PDF、PostScript 文件、图片或纯文本。</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>文档 %1 受密码保护。请另存为无密码的文档再打印。</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>文档 %1 已损坏（%2）。请重新生成或指定其他文档。</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>文档 %1 没有页面。请指定有内容可打印的文档。</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>无法排版标签（%1）。请检查文档是否完整，以及临时文件是否有空间。</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>此打印机的描述不支持所选长度的页面。页面长度仍为 %1 毫米，实际长度由驱动程序决定。</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>与标签带自身长度如此接近的长度会被打印系统改为该长度：%1 毫米。</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>边距使标签带上没有可打印的部分。请增加长度或减小边距。</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>未选择文档的任何页面。请更改页面范围。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>打印机具有 %2=%3，但面板“%1”不提供：作业采用 %4=%5。</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 英寸</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>文档 %1 已不存在：没有打印任何内容。请将其放回，或打开另一个文档。</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>文档 %1 在打开之后已更改：没有打印任何内容。请重新打开。</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>它比任何打印机描述都大</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>无法将 PPD 文件 %1 保存到临时文件（%2）：请腾出空间。</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>打印已停止。</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>%1 的过滤器未能完成文档 %2，已被停止。</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>打印机描述 %1 受信任，会运行自带的程序或命令：%2。</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>已有同名文件</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>文件 %1 只能整体替换，而其旁边无法写入（%2）：请用 --output 指定另一个文件。</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>输出（%1）与只读取的 %2 是同一个文件：请用 --output 指定另一个。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>它是管道或设备</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>打印机描述 %1 自带无人担保的程序或命令：%2。没有运行任何内容。如果您信任其作者，请加上 --trust-ppd 重试。</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>无法将队列 %1 的 PPD 保存到临时文件（%2）：请腾出空间。</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>打印数据已送往标准输出（%1 字节）。</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>文档 %2 的第 %1 页没有尺寸。请略过该页或重新生成。</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>与另一种纸张长度如此接近的长度会被打印系统改为该长度：%1 毫米。</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>需要超过 %1 MiB 的内存</translation>
    </message>
    <message>
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>无法写入文档 %1 的页面（%2）。请在临时文件夹中腾出空间。</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD 文件 %1 被截断：缺少末尾部分。请重新复制。</translation>
    </message>
</context>
</TS>
