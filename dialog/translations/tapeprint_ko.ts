<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>크기:</translation>
    </message>
    <message>
        <source>Shrink when too large</source>
        <translation>너무 크면 축소</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>테이프에 맞춤</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>테이프를 채우고 나머지는 자름</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>원본 크기</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>방향:</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>긴 변을 테이프 방향으로</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>테이프 방향</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>테이프 가로 방향</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>테이프 방향, 거꾸로</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>테이프 가로 방향, 거꾸로</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>테이프 방향:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>테이프 폭 방향:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
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
        <translation>플러그인 %1이(가) 패널을 만들지 못했습니다. 패널이 없어도 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>%2의 패널 ‘%1’에 표시할 화면이 없습니다. 값은 설정된 그대로 인쇄됩니다.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>패널 ‘%1’이(가) 값을 전달하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>패널 ‘%1’이(가) 값을 되돌리지 못했습니다: %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>이전 라벨</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>다음 라벨</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>라벨 %1 / %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>페이지의 일부가 잘립니다.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>이 페이지에는 아무것도 없습니다.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>이 색의 잉크는 이 테이프에서 잘 보이지 않습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n장</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, 테이프 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>라벨 %n장</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>미리 보기 없음: %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 인쇄</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>프린터(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>테이프(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>매수(&amp;C):</translation>
    </message>
    <message>
        <source>Pa&amp;nel:</source>
        <translation>패널(&amp;N):</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>되돌리기(&amp;V)</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>대화 상자를 열었을 때의 값으로 되돌립니다</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1(인쇄 대기열 없음)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>이 패널에는 표시할 화면이 없습니다.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>추가 옵션</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>용지(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>길이 맞추기(&amp;F)</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>그려진 내용과 양쪽 여백에 필요한 길이로 만듭니다</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>계속 맞춤(&amp;K)</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>인쇄하는 중…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>문서에 그려진 것이 없습니다. 테이프 길이를 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>문서에 필요한 테이프가 프린터 한도보다 길어 축소합니다.</translation>
    </message>
    <message>
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>테이프 길이가 직접 %1 mm로 설정되었습니다. 맞는 길이로 바꿀까요?</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>테이프 미리 보기</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>길이 %1, 폭 %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>용지 미리 보기</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1, 페이지의 일부가 잘림</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>이유가 표시되지 않았습니다</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>인쇄 데이터를 %1에 쓸 수 없습니다(%2). 공간을 확보하거나 --output으로 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>필터를 시작할 수 없습니다(%1). CUPS가 완전히 설치되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>%1의 필터가 문서 %2을(를) 인쇄하지 못했습니다: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>cupsfilter 프로그램이 없습니다. cups 패키지를 설치하십시오.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>파일 %1에 쓸 수 없습니다(%2). --output으로 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>%1의 필터가 문서에서 아무것도 만들지 못했습니다. 인쇄할 페이지가 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>문서 %1을(를) 읽을 수 없습니다(%2). 읽을 수 있는 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>인쇄 서버가 문서 %1을(를) 받지 않았습니다(%2). 대기열에서 인쇄할 수 있는 종류의 문서인지 확인하십시오.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>대기열 %1에 연결할 수 없습니다(%2). 사용 가능한 대기열은 lpstat -e로 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>대기열 %1이(가) 작업을 받지 않았습니다(%2). lpstat -p %1 -l을 확인하십시오.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2은(는) 프린터의 PPD에 있는 선택 항목이 아닙니다.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>인쇄 서버가 옵션 %1을(를) 자체 속성 %2(으)로 여기므로 프린터 필터에 전달되지 않습니다. PPD에서 다른 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>코드가 이 Qt에서 불러올 수 있는 플러그인이 아닙니다</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>다른 패널 인터페이스용으로 만들어졌습니다(%1)</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>메타데이터에 주 클래스 이름이 없습니다</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>프린터 패널을 제공하지 않습니다</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>파일 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>코드를 불러올 수 없습니다: %1</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>주 클래스 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>이 시스템에서는 작동하지 않습니다</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>플러그인 %1을(를) 사용하지 않습니다: %2. 플러그인이 없어도 인쇄할 수 있습니다. 번들을 업데이트하거나 제거하십시오.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>PPD 파일 %1을(를) 읽을 수 없습니다(%2). 읽을 수 있는 PPD 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>PPD 파일 %1이(가) 올바르지 않습니다(%2행: %3). 파일을 수정하거나 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>인쇄 서버 %1이(가) 응답하지 않습니다. 서버를 시작하거나, CUPS_SERVER에 다른 서버를 지정하거나, --ppd 파일로 서버 없이 인쇄하십시오.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>기본 프린터가 없습니다. -d 대기열로 인쇄 대기열을 지정하거나 --ppd 파일로 대기열 없이 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>인쇄 서버에 대기열 %1이(가) 없습니다. 사용 가능한 대기열은 lpstat -e로 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>인쇄 서버에서 대기열 %1의 PPD를 가져올 수 없습니다(%2). 대기열이 설정되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>(대기열 %1)</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>보류 중</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>처리 중</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>전송됨</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>인쇄 데이터는 %1에 있습니다(%2바이트).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>작업 %1-%2: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1이(가) 손상되었습니다: 읽을 수 있는 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1은(는) PDF 문서가 아닙니다.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1은(는) 암호로 보호되어 있습니다. 암호 없이 저장한 다음 인쇄하십시오.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1에 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>패널 ‘%1’은(는) %2을(를) 한도와 단계에 맞춥니다. 작업에는 %3 대신 %4이(가) 들어갑니다.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2은(는) 프린터의 PPD에 있는 선택 항목이 아닙니다. 작업에는 %3=%4이(가) 들어갑니다.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>프린터 설명에서 요구하는 플러그인 %1이(가) 설치되어 있지 않습니다. 플러그인이 없어도 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>bubblewrap가 없어 프린터 필터가 격리 없이 실행됩니다. bubblewrap 패키지를 설치하십시오.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>이 컴퓨터에서 허용되지 않아(%1) 프린터 필터가 격리 없이 실행됩니다. 사용자가 네임스페이스를 만들 수 있게 하십시오.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>임시 파일을 쓸 수 없습니다(%1). 임시 파일 폴더의 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>필터가 문서 %1을(를) 페이지로 만들지 못했습니다: %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>그림 %1(%2 x %3 도트)을(를) 풀 수 없습니다(%4). 작게 만들거나 PDF로 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>그림 %1이(가) 손상되었습니다(%2). 다시 만들거나 다른 그림을 지정하십시오.</translation>
    </message>
    <message>
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>문서 %1은(는) 테이프에 배치할 수 없습니다. PDF, PostScript 파일, 그림 또는 일반 텍스트를 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>문서 %1은(는) 암호로 잠겨 있습니다. 암호 없이 저장한 다음 그 문서를 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>문서 %1이(가) 손상되었습니다(%2). 다시 만들거나 다른 문서를 지정하십시오.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>문서 %1에 페이지가 없습니다. 인쇄할 내용이 있는 문서를 지정하십시오.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>라벨을 배치할 수 없습니다(%1). 문서가 온전한지, 임시 파일을 위한 공간이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>이 프린터의 설명은 선택한 길이의 페이지를 허용하지 않습니다. 페이지 길이는 %1 mm로 유지되고 길이는 드라이버에 맡겨집니다.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>테이프 자체의 길이에 이렇게 가까운 길이는 인쇄 시스템이 그 길이로 바꿉니다: %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>여백 때문에 테이프에 인쇄할 부분이 남지 않습니다. 테이프를 길게 하거나 여백을 줄이십시오.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>문서의 페이지가 하나도 선택되지 않았습니다. 페이지 범위를 변경하십시오.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>프린터에는 %2=%3이(가) 있지만 패널 ‘%1’에서는 선택할 수 없습니다. 작업에는 %4=%5이(가) 들어갑니다.</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 인치</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>문서 %1이(가) 없어졌습니다. 아무것도 인쇄되지 않았습니다. 되돌려 놓거나 다른 문서를 여십시오.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>문서 %1이(가) 연 뒤에 바뀌었습니다. 아무것도 인쇄되지 않았습니다. 다시 여십시오.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>어떤 프린터 설명보다도 큽니다</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>PPD 파일 %1을(를) 임시 파일에 보관할 수 없습니다(%2). 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>인쇄를 중지했습니다.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>%1의 필터가 문서 %2을(를) 끝내지 못해 중지되었습니다.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>프린터 설명 %1은(는) 신뢰되어 자체 프로그램이나 명령을 실행합니다: %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>같은 이름의 파일이 있습니다</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>파일 %1은(는) 통째로만 바뀌는데 그 옆에 쓸 수 없습니다(%2). --output으로 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>표준 출력</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>출력(%1)은 읽기만 하는 %2와(과) 같은 파일입니다. --output으로 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>파이프 또는 장치입니다</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>프린터 설명 %1에 아무도 보증하지 않는 자체 프로그램이나 명령이 들어 있습니다: %2. 아무것도 실행되지 않았습니다. 만든 이를 신뢰한다면 --trust-ppd로 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>대기열 %1의 PPD를 임시 파일에 보관할 수 없습니다(%2). 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>프린터 데이터를 표준 출력으로 보냈습니다(%1바이트).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>문서 %2의 %1페이지에 크기가 없습니다. 그 페이지를 빼거나 다시 만드십시오.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>다른 용지의 길이에 이렇게 가까운 길이는 인쇄 시스템이 그 길이로 바꿉니다: %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>%1 MiB가 넘는 메모리가 필요합니다</translation>
    </message>
    <message>
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>문서 %1의 페이지를 쓸 수 없습니다(%2). 임시 파일 폴더의 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD 파일 %1이(가) 잘려 끝부분이 없습니다. 다시 복사하십시오.</translation>
    </message>
</context>
</TS>
