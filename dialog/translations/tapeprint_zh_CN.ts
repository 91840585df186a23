<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>此插件启动时程序终止了；下次会再尝试</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>此插件启动时程序终止了，下一次也是如此；插件包更改后会再尝试</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>无法加载其代码：%1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>其代码与元数据所述不符</translation>
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
        <source>it failed while it was starting: %1</source>
        <translation>启动失败：%1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>启动失败</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>打印机描述要求插件 %1，但该插件未安装。没有该插件也可以打印。</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>使用插件 %1 代替 %2。</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>未使用插件 %1：%2。没有该插件也可以打印；请更新或移除该插件包。</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 属于其他人</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>任何人都可以写入 %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>它是为其他面板接口（%1）制作的</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>它是为更高版本的面板接口（%1）制作的</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>它没有文件 %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>其代码不是此 Qt 可以加载的插件</translation>
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
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>另一个程序已等待此插件一分钟或更久</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>未选择页面</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>正在计数…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>数量未知</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>数量异常：%1。</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>打印 %n 张标签</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>打印 %n 张</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>自定义…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>解决(&amp;S)</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>解决：%1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>请为其中之一另选。</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomFields</name>
    <message>
        <source>%1:</source>
        <comment>name of a value</comment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a value, and what is wrong with it</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomSizeSheet</name>
    <message>
        <source>Custom Size</source>
        <translation>自定义尺寸</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>新尺寸</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>已记住(&amp;B)：</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>用于记住它</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>名称(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>页码请写成 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>页面：</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>奇数页和偶数页</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>仅奇数页</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>仅偶数页</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>其中：</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从最后一页开始</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>按 1, 2, 3, 1, 2, 3 而不是 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 最低，100 最高</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>优先级：</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>释放后</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>傍晚</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第二班</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第三班</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>周末</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>指定时间</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>打印时间</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>打印时机：</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>计费：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>关闭此窗口后作业仍会继续</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
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
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>适合纸张</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>充满纸张，裁去其余部分</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>方向：</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>最合适的方向</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下颠倒</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>每张标签的页数：</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>每张纸的页数：</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>排列顺序：</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>从左到右，再向下</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>从右到左，再向下</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>向下，再从左到右</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>向下，再从右到左</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>边框：</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>单线</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>双线</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>适用于一张上放多页</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>Installed in the printer</source>
        <translation>打印机已安装的部件</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>未使用插件 %1：%2。没有该插件也可以打印。</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>插件 %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>%2 的面板“%1”</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>插件 %1 发送了作业无法包含的选项，已将其略去：%2。</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>面板不停地更改 %1（%2）：将按当前值打印。</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>插件 %1 发送了 %2=%3，打印机描述中没有该值。</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1无法提交其数值</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1无法恢复其数值</translation>
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
        <translation>打印机描述中没有列出纸张。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>自定义…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>自定义（%1）</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>打印服务器 %1 需要知道是谁在打印。</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>未被接受。</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>预设 %1 将被替换。</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>已有预设 %1。</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>使用“%1”</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>打印机默认值</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>与上次相同</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>预设(&amp;S)：</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>保存、重命名或删除预设</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>覆盖保存(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>删除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>设为默认(&amp;M)</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>未指定打印机时用它打印</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>预设属于打印队列，而这里没有队列。</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>预设 %1 已不存在。</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>要删除预设 %1 吗？其他程序也会失去它。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
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
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>程序的页面将按此尺寸排版，稍后送来。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
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
        <source>Printer Options</source>
        <translation>打印机选项</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>显示命令(&amp;W)…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>以 Shell 命令表示同一作业</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>请为其中之一另选。</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>更改并打印(&amp;P)</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>仍然打印(&amp;S)</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>标签带长度已手动设为 %1。要替换为合适的长度吗？</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>设置(&amp;N)：</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>正在打印作业。</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>仍在连接打印机。</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>请先选择打印机。</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>打印机在此没有可选项。</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>当前打印机、标签带或其他设置下不可用。</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>重新载入(&amp;L)</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>请选择打印机</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>打印机已不存在。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>此设置页面的帮助</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – 正在连接…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1不接受这些设置。没有打印任何内容。</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>单位仅对此窗口有效：无法写入 %1。</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>此打印机没有描述：要打印的内容会原样交给它。因此没有预览，也不知道会打印多少页。</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>没有预览：打印机的描述中没有列出纸张。</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1”被“%2”停用：此打印机、所选标签带或其中的其他设置不提供它。</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1”被“%2”停用：此打印机在该处没有可选项。</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>“%1”与“%2”的设置不能同时使用。</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>再次询问(&amp;A)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>正在发送…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>打印服务器没有响应。恢复后打印机会重新出现。</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>没有默认打印机。请选择打印机。</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>打印机 %1 已不存在。请选择其他打印机或等待它恢复：您的设置会保留。</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>打印机 %1 的描述已在打印服务器上更改。请在打印前重新载入。</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>上次使用的打印机 %1 已不存在。</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>改用打印机 %1。</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>打印机 %1 在打印服务器上已更改，由于没有密码，未查看其描述。打印前请再次询问。</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1（无打印队列）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1（默认）</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>位置：%1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>类：由其中空闲的打印机打印作业。</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>在网络上找到</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a printer and its state</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterPopUp</name>
    <message>
        <source>Search by name, description or location</source>
        <translation>按名称、描述或位置搜索</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>搜索打印机</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>标签</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>将作业保存为文件而不打印</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>另存为 &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>保存打印机数据(&amp;D)…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>保存打印机数据</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>打印机数据 (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Shell 命令</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>用 tapeprint 完成同一作业(&amp;T)：</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>用 lp 设置同样的选项（不排版）(&amp;L)：</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>复制 %1 的命令</translation>
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
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>此处所示长度的单位</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>毫米(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>英寸(&amp;I)</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>长度单位</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>毫米</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>未说明原因</translation>
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
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 不在打印机 PPD 列出的选项之中。</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>选项 %1 无法到达打印机的过滤器，因为打印服务器将其当作自己的属性 %2。请在 PPD 中为其另取名称。</translation>
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
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>由于缺少 bubblewrap，打印机的过滤器在没有隔离的情况下运行：请安装软件包 bubblewrap。</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>由于这台计算机不允许（%1），打印机的过滤器在没有隔离的情况下运行：请允许用户创建命名空间。</translation>
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
        <source>standard output</source>
        <translation>标准输出</translation>
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
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD 文件 %1 被截断：缺少末尾部分。请重新复制。</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>无法汇集所选页面（%1）：请确认文档完整且有空间存放临时文件。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>“%1”变为“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>“%1”从“%2”变为“%3”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1”不能与“%2”一起使用。</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 不能一起使用。</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>高度</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>尺寸未被记住，因为 %1 无法写入。</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>请去掉单个花括号和不可见字符。</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>请输入 %1 至 %2 个字符。</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>请输入至少 %1 个字符。</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>请输入 %1 至 %2 位数字。</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>请输入至少 %1 位数字。</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>请输入 %1 至 %2 英寸的长度。</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>请输入 %1 至 %2 mm 的长度。</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>请输入 %1 至 %2 的整数。</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>请输入 %1 至 %2 的数。</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>选项 %1 的值带花括号，打印服务器会将其去掉：请给 %1 一个普通的值。</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>打印系统不认识 number-up=%1：每页单独一张。</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>选项 %1 对标签带不起作用：请用 print-scaling、orientation-requested、position 和 number-up 指定页面摆放。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>打印服务器未说明原因</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>打印服务器不再提供作业 %1 的信息。</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>作业 %1 失败：%2。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>作业 %1 已取消。</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>作业 %1 已打印。</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>作业 %1 被保留：等待释放。</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>作业 %1 正在等待：%2。</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>正在打印作业 %1。</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>作业 %1 排在其他作业之后：%2。</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>作业 %1 正在等待打印机。</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>无法得知作业 %1 的结果。</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>无法取消作业 %1（%2）。</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>无法为下次保留设置：%1 无法写入。</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>它太大</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>无法读取您的预设文件 %1（%2）。</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>选项数量超出 CUPS 可在预设中保存的数量。</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>有一个选项的值无法由 CUPS 保存在预设中。</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>无法写入您的预设文件 %1（%2）：文件保持原样。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>常规</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>文件 %1 太大，不可能是 PPD：请指定 PPD 文件。</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 没有您的预设 %2。</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>已有预设 %1。</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>预设需要名称。</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>名称含有空格、斜杠、引号或 # &lt; &gt; 之一的预设无法由 CUPS 保存。</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>此名称超出 CUPS 可保存的长度。</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>此打印机已没有预设中的选项 %1=%2。预设会保留它，直到您覆盖保存。</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>打印机 %1 不接受作业。</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>打印机 %1 不接受作业：%2。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>打印机 %1 已停止。作业会等到它恢复。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>打印机 %1 已停止：%2。作业会等到它恢复。</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>打印机 %1 报告：%2。</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>队列 %1 没有可用来生成打印机数据的描述：请改存为 PDF。</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>PDF 在 %1 中（%2 字节）。</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>队列 %1 不接受作业：请查看 lpstat -a %1。</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 不是尺寸：请写成 Custom.宽x长mm，或使用 in、cm、pt。</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2：打印机只接受自带的尺寸。</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 小于或大于打印机可接受的范围。</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2：%3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 不在打印机 PPD 列出的选项之中。</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2：CUPS 不认识 %1 的这个值。</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>打印服务器 %1 需要用户名和密码，但没有得到它接受的。</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>打印服务器 %1 已停止响应：待其恢复后再试。</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>标签带用完</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>需要其他标签带</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>需要其他纸张</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>标签带将尽</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>纸张将尽</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>标签带卡住</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>盖子打开</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>有门打开</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>未装入带盒</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>出纸盘已满</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>墨水将尽</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>墨水用完</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>碳粉将尽</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>碳粉用完</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>此作业后暂停</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新作业被保留</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>已关闭或未连接</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>没有响应</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>打印服务器磁盘已满</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>缺少部分驱动程序</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>打印服务器不信任其驱动程序</translation>
    </message>
    <message>
        <source>in</source>
        <comment>the sign of the inch</comment>
        <translation>英寸</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <comment>a length in feet</comment>
        <translation>%1 英尺</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): choose another printer.</source>
        <translation>无法连接队列 %1（%2）：请选择其他打印机。</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>队列 %1 没有接受作业（%2）。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>无法写入文件 %1（%2）：请指定其他文件。</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>文件 %1 只能整体替换，而其旁边无法写入（%2）：请指定其他文件。</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>输出（%1）与只读取的 %2 是同一个文件：请指定另一个。</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>无法加载本程序绘制页面的部分（%1）：请重新安装。</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>打印机描述 %1 自带无人担保的程序或命令：%2。没有运行任何内容。</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>没有默认打印机：请选择一台。</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>打印服务器没有队列 %1：请选择其他打印机。</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>打印服务器 %1 没有响应。将继续询问，直到其响应。</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1不停地调用自身，因此没有再询问它。</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1让窗口等待了 %2 秒。</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1失败。</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1失败：%2。</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>无法写入临时文件（%1）：请检查临时文件夹是否可写并有足够空间。</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 会原样交给打印服务器，服务器也许知道如何处理。</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>文档 %1 是空的：请指定一个有内容可打印的文件。</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>打印机命令</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>打印机正在工作</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>读取它的程序已中断</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>第 %1 页将只有 %2 毫米宽、%3 毫米长，无法阅读。请增加长度、减小边距或减少每张标签的页数。</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>文档 %1 的类型无法排在标签带上。请用能显示它的程序打开，另存为 PDF 或 PNG，再打印该文件。</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>作业 %1 失败：%2。它仍在队列中：请在桌面的打印机设置中取消或重新开始。</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>作业 %2-%1 可能只发送了一半并留在服务器上：请在桌面的打印机设置中取消。</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>打印机没有选项 %1。是否指 %2？</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>“%1”不是页码列表：请写成 1-3,7。</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>没有第 %1 页：页码从 1 开始。</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>页码 %1-%2 是倒序的：请写成 %2-%1。</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>打印服务器对一个作业最多打印 %1 份，而不是 %2 份。请减少份数。</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>打印服务器不能在一张纸上放 %1 页（number-up）。请从下列数字中选择：%2。</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>程序打印一部分：当前页或所选内容。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>它太大</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>无法读取程序的文档（%1）：请重新打印，或将其保存为 PDF 后再打印。</translation>
    </message>
</context>
</TS>
