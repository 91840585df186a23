<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>the program ended while this plug-in was starting; it is tried again the next time</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>its code cannot be loaded: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>its code is not what its metadata says</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>it has no principal class %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>it cannot serve on this system</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>it failed while it was starting: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>it failed while it was starting</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>The plug-in %1 is used in place of %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 cannot be read</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 belongs to somebody else</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>everybody may write to %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>it is made for another panel interface (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>it is made for a later version of the panel interface (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>it has no file %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>its code is no plug-in that this Qt can load</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>its metadata names no principal class</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>it does not serve printer panels</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>another program has been waiting for this plug-in for a minute or more</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>No page is chosen</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Counting…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Amount not known</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>This is an unusual amount: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>Print %n Label</numerusform>
            <numerusform>Print %n Labels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>Print %n Sheet</numerusform>
            <numerusform>Print %n Sheets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Custom…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Re&amp;solve</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Resolve: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Choose something else for one of them.</translation>
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
        <translation>Custom Size</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>New size</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>Remem&amp;bered:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>To remember it</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;ame:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Write pages as 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Odd and even</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Odd only</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Even only</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Of these:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Last page first</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Copies one after the other</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 is the lowest, 100 the highest</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priority:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>At once</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>When it is released</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>By day</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>In the evening</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>At night</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In the second shift</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In the third shift</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>At the weekend</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>At a time</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Time of printing</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Print it:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Billing:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>The job goes on without this window</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>Shrink when too large</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Fit to the tape</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Fill the tape, cut off the rest</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Original size</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Longer side along the tape</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Along the tape</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>Across the tape</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Along the tape, upside down</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>Across the tape, upside down</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Along the tape:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>Across the tape:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Fit to the paper</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Fill the paper, cut off the rest</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Direction:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>As it fits best</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Upright</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Turned to the left</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Turned to the right</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Upside down</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Pages on a label:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Pages on a sheet:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Their order:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Left to right, then down</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Right to left, then down</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Down, then left to right</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Down, then right to left</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Frame:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>None</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Single line</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Double line</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>This is about several pages on one</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Notices</translation>
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
        <translation>Installed in the printer</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>The plug-in %1 could not make its panel: printing works without it.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>The plug-in %1 is not used: %2. Printing works without it.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>The plug-in %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>The panel &quot;%1&quot; of %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>The plug-in %1 sent an option that no job can carry, which was left out: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Panels change %1 without end (%2): it is printed as it stands.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1 could not hand over its values</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1 could not restore its values</translation>
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
        <translation>The printer&apos;s description names no paper.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Custom…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Custom (%1)</translation>
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
        <translation>The print server %1 wants to know who prints.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>That was not accepted.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;User:</translation>
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
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>The preset %1 will be replaced.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>There is a preset %1 already.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>Take &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Printer&apos;s Defaults</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>As Last Time</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>Pre&amp;set:</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Save, rename or delete presets</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Save as…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>Save &amp;over</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Rename…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Delete…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>&amp;Make default</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Print with it when no printer is named</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Presets are kept for a print queue, and here is none.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (changed)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>There is no preset %1 any more.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Save Preset</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Rename Preset</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Delete Preset</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>Delete the preset %1? Other programs have it, too, and will lose it.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Previous label</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Next label</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Label %1 of %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Part of the page is cut off.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Nothing is drawn on this page.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>Ink of this colour is hard to see on this tape.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n sheet</numerusform>
            <numerusform>%n sheets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 of tape</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n label</numerusform>
            <numerusform>%n labels</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>There is no preview: %1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>The program&apos;s pages come later, laid out for this size.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Print %1</translation>
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
        <translation>&amp;Copies:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;vert</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Go back to the values that the dialog was opened with</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>This panel has no view.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>More Options</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>P&amp;aper:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Fit Length</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Make the tape as long as what is drawn needs, with both margins</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Keep it fitted</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Nothing is drawn on the document: the tape keeps its length.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>The document needs more tape than the printer takes: it is made smaller.</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>Printer Options</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Sho&amp;w Command…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>The same job as a command for a shell</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Choose something else for one of them.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Change and &amp;Print</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Print All the &amp;Same</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>The tape length was set to %1 by hand. Replace it by the length that fits?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Setti&amp;ngs:</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>The job is being printed.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>The printer is still being connected.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Choose a printer first.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>The printer offers no choice here.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Not available with this printer, this tape or the other settings.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>&amp;Load Anew</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connecting…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Choose a printer</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>The printer is not there any more.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancel Job</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Help for this page of the settings</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – connecting…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 does not accept the settings. Nothing was printed.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>The unit holds for this window alone: %1 cannot be written.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>There is no preview: the printer&apos;s description names no paper.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1” is switched off by “%2”: this printer offers nothing to choose there.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>“%1” does not go with what is set for “%2”.</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Ask Again</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Printing…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelling…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Sending…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>The print server does not answer. Its printers come back when it does.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>There is no default printer. Choose a printer.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>The description of the printer %1 has changed on the print server. Load it anew before you print.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>The printer %1, which was used last, is not there any more.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>The printer %1 is taken in its place.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (no print queue)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (default)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>not there any more</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Location: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>A class: whichever of its printers is free prints the job.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Found on the network</translation>
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
        <translation>Search by name, description or location</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Search printers</translation>
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
        <translation>labels</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>Save the job in a file in place of printing it</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Save as &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Save Printer &amp;Data…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Save Printer Data</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF documents (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Printer data (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Commands for a Shell</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>The same job by &amp;tapeprint:</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>The same options by &amp;lp, which lays nothing out:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Copy the command of %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Tape preview</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Length %1, width %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Paper preview</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1; part of the page is cut off</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>The unit of the lengths shown here</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimetres</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Inches</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unit of length</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimetres</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>they do not say why</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>The filters cannot be started (%1): see that CUPS is installed whole.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>The filters of %1 could not print the document %2: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>The program cupsfilter is missing: install the package cups.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>The filters of %1 made nothing of the document: see that it has pages to print.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>The document %1 cannot be read (%2): name a readable file.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 is none of the choices that the printer&apos;s PPD lists.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>The PPD file %1 cannot be read (%2): name a readable PPD file.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>of queue %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>pending</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>pending-held</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>processing</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>processing-stopped</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>canceled</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>aborted</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>completed</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>sent</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>The printer&apos;s bytes are in %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Job %1-%2 is %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>It is no plain file.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 is broken: no page of it can be read.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 is no PDF document.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 is protected by a password: save it without one, and print that.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 has no page.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>The filters could not make pages of the document %1: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>The picture %1 is damaged (%2): make it anew or name another.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>The document %1 is locked with a password: save it without one and print that.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>The document %1 is damaged (%2): make it anew or name another.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>The document %1 has no page: name one with something to print.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>None of the document&apos;s pages is chosen: change the page range.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>The document %1 is gone: nothing was printed. Put it back, or open another.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>The document %1 has changed since it was opened: nothing was printed. Open it again.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>it is larger than any printer description</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>Printing was stopped.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>The filters of %1 did not come to an end with the document %2 and were stopped.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>The printer description %1 is trusted and runs programs or commands of its own: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>a file of this name is there</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>it is a pipe or a device</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>The printer&apos;s bytes went to standard output (%1 bytes).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>Page %1 of the document %2 has no size: leave it out or make it anew.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>The print system makes a length so near to that of another paper into that: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>more than %1 MiB of memory would be needed</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>The PPD file %1 is cut off: its end is missing. Copy it anew.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; becomes &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; does not go with &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 do not go together.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Height</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>The sizes are not remembered, because %1 cannot be written.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>Leave out single braces and characters that cannot be seen.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Give %1 to %2 characters.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Give %1 characters or more.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Give %1 to %2 digits.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Give %1 digits or more.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Give a length from %1 to %2 in.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Give a length from %1 to %2 mm.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Give a whole number from %1 to %2.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Give a number from %1 to %2.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>the print server does not say why</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>The print server tells no more of job %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>Job %1 has failed: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Job %1 was cancelled.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>Job %1 is printed.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>Job %1 is held: it waits until it is released.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>Job %1 waits: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>Job %1 is being printed.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>Job %1 waits behind others: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>Job %1 waits for the printer.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>What became of job %1 is not known.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>Job %1 cannot be cancelled (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>The settings cannot be kept for the next time: %1 cannot be written.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>it is no file</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>The file with your presets, %1, cannot be read (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>These are more options than CUPS keeps in a preset.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>An option has a value that CUPS cannot keep in a preset.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>The file with your presets, %1, cannot be written (%2): it stays as it was.</translation>
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
        <translation>The PPD file %1 is too large for one: name a PPD file.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 has no preset %2 of yours.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>There is a preset %1 already.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>A preset needs a name.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>This name is longer than CUPS can keep.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>Printing</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>takes no jobs</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>The printer %1 takes no jobs.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>The printer %1 takes no jobs: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>The printer %1 is stopped. A job waits until it goes on.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>The printer %1 is stopped: %2. A job waits until it goes on.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>The printer %1 says: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>The PDF is in %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>The queue %1 takes no jobs: see lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: the printer takes no sizes other than those that it has.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 is smaller or larger than the printer can take.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 is none of the choices that the printer&apos;s PPD lists.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2 is no value that CUPS knows for %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>The print server %1 has stopped answering: try again when it is back.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>out of tape</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>out of paper</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>other tape is needed</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>other paper is needed</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>little tape is left</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>little paper is left</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>the tape is jammed</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>the paper is jammed</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>the cover is open</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>a door is open</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>no cassette is in it</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>the paper tray is missing</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>the output tray is full</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>little ink is left</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>out of ink</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>little toner is left</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>out of toner</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>paused</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>paused after this job</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>new jobs are held</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>switched off or not connected</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>it does not answer</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>being connected</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>the print server&apos;s disk is full</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>a part of its driver is missing</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>the print server does not trust its driver</translation>
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
        <translation>The queue %1 cannot be reached (%2): choose another printer.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>The queue %1 did not take the job (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>The file %1 cannot be written (%2): name another.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>The output (%1) is the same file as %2, which is only read: name another.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>The part of this program that draws pages cannot be loaded (%1): install it again.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>There is no default printer: choose one.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>The print server knows no queue %1: choose another printer.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>The print server %1 does not answer. It is asked again until it does.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 calls itself without end, and was not asked again.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 kept the window waiting for %2 s.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 failed.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 failed: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 is handed to the print server as it is, which may know what to make of it.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>The document %1 is empty: name a file with something to print.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Printer Commands</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>the printer is at work</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>what reads it has broken off</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>The printer has no option %1: is %2 meant?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>“%1” is no list of pages: write them as 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>There is no page %1: pages are counted from 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>The pages %1-%2 run backwards: write %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>The program prints a part: its current page, or what is selected.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>it is no file</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</translation>
    </message>
</context>
</TS>
