<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Size:</translation>
    </message>
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
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Direction:</translation>
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
        <translation>The plug-in %1 could not make its panel: printing works without it.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>The panel &quot;%1&quot; could not hand over its values: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>The panel &quot;%1&quot; could not restore its values: %2</translation>
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
        <source>Pa&amp;nel:</source>
        <translation>Pa&amp;nel:</translation>
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
        <source>%1 (no print queue)</source>
        <translation>%1 (no print queue)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Printing</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Printing…</translation>
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
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>The tape length was set to %1 mm by hand. Replace it by the length that fits?</translation>
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
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>they do not say why</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</translation>
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
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>The file %1 cannot be written (%2): name another with --output.</translation>
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
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</translation>
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
        <source>its code is no plug-in that this Qt can load</source>
        <translation>its code is no plug-in that this Qt can load</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>it is made for another panel interface (%1)</translation>
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
        <source>it has no file %1</source>
        <translation>it has no file %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>its code cannot be loaded: %1</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</translation>
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
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>The print server knows no queue %1: see lpstat -e for the queues there are.</translation>
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
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</translation>
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
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>A temporary file cannot be written (%1): make room in the folder for temporary files.</translation>
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
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</translation>
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
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 in</translation>
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
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>The output (%1) is the same file as %2, which is only read: name another with --output.</translation>
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
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</translation>
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
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>The PPD file %1 is cut off: its end is missing. Copy it anew.</translation>
    </message>
</context>
</TS>
