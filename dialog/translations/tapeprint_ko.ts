<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>이 플러그인을 시작하는 동안 프로그램이 끝났습니다. 다음에 다시 시도합니다</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>이 플러그인을 시작하는 동안 프로그램이 끝났고 다음에도 그랬습니다. 번들이 바뀌면 다시 시도합니다</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>코드를 불러올 수 없습니다: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>코드가 메타데이터와 다릅니다</translation>
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
        <source>it failed while it was starting: %1</source>
        <translation>시작하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>시작하지 못했습니다</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>프린터 설명에서 요구하는 플러그인 %1이(가) 설치되어 있지 않습니다. 플러그인이 없어도 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>%2 대신 플러그인 %1을(를) 사용합니다.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>플러그인 %1을(를) 사용하지 않습니다: %2. 플러그인이 없어도 인쇄할 수 있습니다. 번들을 업데이트하거나 제거하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1은(는) 다른 사람의 소유입니다</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>누구나 %1에 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>다른 패널 인터페이스용으로 만들어졌습니다(%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>더 새로운 패널 인터페이스용으로 만들어졌습니다(%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>파일 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>코드가 이 Qt에서 불러올 수 있는 플러그인이 아닙니다</translation>
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
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>다른 프로그램이 1분 이상 이 플러그인을 기다리고 있습니다</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>선택한 페이지 없음</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>세는 중…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>양을 알 수 없음</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>평소와 다른 양입니다: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>레이블 %n장 인쇄</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>%n장 인쇄</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>사용자 지정…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>해결(&amp;S)</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>해결: %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>그중 하나를 다른 것으로 선택하십시오.</translation>
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
        <translation>사용자 지정 크기</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>새 크기</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>기억된 크기(&amp;B):</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>기억하려면</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>이름(&amp;A):</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>제목:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>1-3,7처럼 쓰십시오</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>페이지:</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>홀수와 짝수</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>홀수만</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>짝수만</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>그중:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 1, 2, 2, 3, 3 대신 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1이 가장 낮고 100이 가장 높습니다</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>우선순위:</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>바로</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>해제될 때</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>낮에</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>저녁에</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>밤에</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>2교대에</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>3교대에</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>주말에</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>정한 시각에</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>인쇄 시각</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>인쇄 시점:</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>청구:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>이 창이 없어도 작업은 계속됩니다</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
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
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>크기:</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>용지에 맞춤</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>용지를 채우고 나머지는 자름</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>방향:</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>가장 잘 맞게</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>왼쪽으로 회전</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>오른쪽으로 회전</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>거꾸로</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>레이블당 페이지:</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>장당 페이지:</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>순서:</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>왼쪽에서 오른쪽, 다음 아래</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>오른쪽에서 왼쪽, 다음 아래</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>아래, 다음 왼쪽에서 오른쪽</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>아래, 다음 오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>테두리:</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>없음</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>한 줄</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>두 줄</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>한 장에 여러 페이지를 놓을 때의 설정입니다</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>알림</translation>
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
        <translation>프린터에 설치된 것</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>플러그인 %1을(를) 사용하지 않습니다: %2. 플러그인이 없어도 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>플러그인 %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>%2의 패널 ‘%1’</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>플러그인 %1이(가) 보낸 옵션은 작업에 넣을 수 없어 제외했습니다: %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>패널이 %1을(를) 끝없이 바꿉니다(%2). 현재 값 그대로 인쇄합니다.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>플러그인 %1이(가) 프린터 설명에 없는 %2=%3을(를) 보냅니다.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1이(가) 값을 전달하지 못했습니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1이(가) 값을 되돌리지 못했습니다</translation>
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
        <translation>프린터 설명에 용지가 없습니다.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>사용자 지정…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>사용자 지정(%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>인쇄 서버 %1이(가) 누가 인쇄하는지 묻습니다.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>받아들여지지 않았습니다.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>사용자(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>암호(&amp;P):</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>이름(&amp;N):</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>사전 설정 %1이(가) 바뀝니다.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>사전 설정 %1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 사용</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>프린터 기본값</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>지난번처럼</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>사전 설정(&amp;S):</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>사전 설정 저장, 이름 바꾸기, 삭제</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>다른 이름으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>덮어쓰기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>이름 바꾸기(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>삭제(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>기본값으로 지정(&amp;M)</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>프린터를 지정하지 않으면 이것으로 인쇄합니다</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>사전 설정은 인쇄 대기열에 속하는데 여기에는 대기열이 없습니다.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1(변경됨)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>사전 설정 %1이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>사전 설정 저장</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>사전 설정 이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>사전 설정 삭제</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>사전 설정 %1을(를) 삭제할까요? 다른 프로그램에서도 사라집니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
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
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>프로그램의 페이지는 이 크기에 맞게 나중에 옵니다.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2페이지 중 %1페이지</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>이전 페이지</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>다음 페이지</translation>
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
        <source>Printer Options</source>
        <translation>프린터 옵션</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>명령 표시(&amp;W)…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>같은 작업을 셸 명령으로 보여 줍니다</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>그중 하나를 다른 것으로 선택하십시오.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>바꾸고 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>그래도 인쇄(&amp;S)</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>테이프 길이가 직접 %1(으)로 설정되었습니다. 맞는 길이로 바꿀까요?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>설정(&amp;N):</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>작업을 인쇄하는 중입니다.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>아직 프린터에 연결하는 중입니다.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>먼저 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>프린터가 여기서 선택을 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>이 프린터, 이 테이프 또는 다른 설정에서는 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>다시 불러오기(&amp;L)</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>연결하는 중…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>프린터를 선택하십시오</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>프린터가 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>작업 취소</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>이 설정 페이지의 도움말</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – 연결하는 중…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1이(가) 설정을 받아들이지 않습니다. 아무것도 인쇄되지 않았습니다.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>단위는 이 창에서만 적용됩니다. %1에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>이 프린터에는 설명이 없어 인쇄할 내용이 그대로 전달됩니다. 그래서 미리 보기가 없으며 몇 페이지가 나올지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>미리 보기 없음: 프린터 설명에 용지가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1”은(는) “%2”에 의해 꺼져 있습니다: 이 프린터, 선택한 테이프 또는 다른 설정에서 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>“%1”은(는) “%2”에 의해 꺼져 있습니다: 이 프린터에는 선택할 항목이 없습니다.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>“%1”은(는) “%2”의 설정과 함께 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>다시 묻기(&amp;A)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>인쇄하는 중…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>취소하는 중…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>보내는 중…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>인쇄 서버가 응답하지 않습니다. 응답하면 프린터가 다시 나타납니다.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>기본 프린터가 없습니다. 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>프린터 %1이(가) 더 이상 없습니다. 다른 프린터를 선택하거나 돌아올 때까지 기다리십시오. 설정은 유지됩니다.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>프린터 %1의 설명이 서버에서 바뀌었습니다. 인쇄하기 전에 다시 불러오십시오.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>마지막으로 사용한 프린터 %1이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>대신 프린터 %1을(를) 사용합니다.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>프린터 %1이(가) 인쇄 서버에서 변경되었지만 암호가 없어 설명을 확인하지 못했습니다. 인쇄하기 전에 다시 물어보세요.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1(인쇄 대기열 없음)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1(기본)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>더 이상 없음</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>위치: %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>클래스: 비어 있는 프린터가 작업을 인쇄합니다.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>네트워크에서 찾음</translation>
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
        <translation>이름, 설명, 위치로 찾기</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>프린터 찾기</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>프린터</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>레이블</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>인쇄하는 대신 작업을 파일에 저장합니다</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>&amp;PDF로 저장…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>프린터 데이터 저장(&amp;D)…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF로 저장</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>프린터 데이터 저장</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 문서 (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>프린터 데이터 (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>셸 명령</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>tapeprint로 같은 작업(&amp;T):</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>lp로 같은 옵션(배치하지 않음)(&amp;L):</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>%1 명령 복사</translation>
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
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>여기에 표시되는 길이의 단위</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>밀리미터(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>인치(&amp;I)</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>길이 단위</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>인치</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>밀리미터</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>이유가 표시되지 않았습니다</translation>
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
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2은(는) 프린터의 PPD에 있는 선택 항목이 아닙니다.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>인쇄 서버가 옵션 %1을(를) 자체 속성 %2(으)로 여기므로 프린터 필터에 전달되지 않습니다. PPD에서 다른 이름을 지정하십시오.</translation>
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
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>bubblewrap가 없어 프린터 필터가 격리 없이 실행됩니다. bubblewrap 패키지를 설치하십시오.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>이 컴퓨터에서 허용되지 않아(%1) 프린터 필터가 격리 없이 실행됩니다. 사용자가 네임스페이스를 만들 수 있게 하십시오.</translation>
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
        <source>standard output</source>
        <translation>표준 출력</translation>
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
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD 파일 %1이(가) 잘려 끝부분이 없습니다. 다시 복사하십시오.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>선택한 페이지를 모을 수 없습니다(%1). 문서가 온전한지, 임시 파일을 둘 공간이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>&quot;%1&quot;이(가) &quot;%2&quot;(으)로 바뀝니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>&quot;%1&quot;이(가) &quot;%2&quot;에서 &quot;%3&quot;(으)로 바뀝니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>&quot;%1&quot;은(는) &quot;%2&quot;와(과) 함께 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1은(는) 함께 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>높이</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>%1에 쓸 수 없어 크기를 기억하지 못합니다.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>짝이 없는 중괄호와 보이지 않는 문자는 빼십시오.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>%1~%2자로 입력하십시오.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>%1자 이상 입력하십시오.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>%1~%2자리 숫자로 입력하십시오.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>%1자리 이상 숫자로 입력하십시오.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>%1~%2인치의 길이를 입력하십시오.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>%1~%2 mm의 길이를 입력하십시오.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>%1~%2의 정수를 입력하십시오.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>%1~%2의 수를 입력하십시오.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>옵션 %1의 값이 중괄호 안에 있는데 인쇄 서버가 이를 없앱니다. %1에 일반 값을 주십시오.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1은(는) 인쇄 시스템이 모르는 수입니다. 페이지마다 한 장을 씁니다.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>옵션 %1은(는) 테이프에서 아무것도 바꾸지 않습니다. 페이지 배치는 print-scaling, orientation-requested, position, number-up으로 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>인쇄 서버가 이유를 알리지 않음</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>인쇄 서버가 작업 %1에 대해 더 알리지 않습니다.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>작업 %1이(가) 실패했습니다: %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>작업 %1이(가) 취소되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>작업 %1이(가) 인쇄되었습니다.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>작업 %1이(가) 보류되었습니다. 해제될 때까지 기다립니다.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>작업 %1이(가) 기다립니다: %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>작업 %1을(를) 인쇄하는 중입니다.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>작업 %1이(가) 다른 작업 뒤에서 기다립니다: %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>작업 %1이(가) 프린터를 기다립니다.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>작업 %1이(가) 어떻게 되었는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>작업 %1을(를) 취소할 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>설정을 다음에 쓰도록 보관할 수 없습니다: %1에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>너무 큽니다</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>사전 설정 파일 %1을(를) 읽을 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>CUPS가 사전 설정에 보관하는 것보다 옵션이 많습니다.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>CUPS가 사전 설정에 보관할 수 없는 값을 가진 옵션이 있습니다.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>사전 설정 파일 %1에 쓸 수 없습니다(%2). 파일은 그대로 남습니다.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>일반</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>PPD 파일 %1은(는) PPD로는 너무 큽니다. PPD 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1에 사용자의 사전 설정 %2이(가) 없습니다.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>사전 설정 %1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>사전 설정에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>이름에 공백, 빗금, 따옴표 또는 # &lt; &gt; 중 하나가 있는 사전 설정은 CUPS가 보관할 수 없습니다.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>이 이름은 CUPS가 보관할 수 있는 것보다 깁니다.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>사전 설정의 옵션 %1=%2은(는) 이 프린터에 더 이상 없습니다. 덮어쓸 때까지 사전 설정에 남습니다.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>프린터 %1이(가) 작업을 받지 않습니다.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>프린터 %1이(가) 작업을 받지 않습니다: %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>프린터 %1이(가) 중지되었습니다. 작업은 다시 시작될 때까지 기다립니다.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>프린터 %1이(가) 중지되었습니다: %2. 작업은 다시 시작될 때까지 기다립니다.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>프린터 %1의 알림: %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>대기열 %1에는 프린터 데이터를 만들 프린터 설명이 없습니다. 대신 PDF를 저장하십시오.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>PDF는 %1에 있습니다(%2바이트).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>대기열 %1이(가) 작업을 받지 않습니다. lpstat -a %1을 확인하십시오.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2은(는) 크기가 아닙니다. Custom.너비x길이mm 또는 in, cm, pt로 쓰십시오.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2: 프린터는 가지고 있는 크기만 받습니다.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2은(는) 프린터가 받을 수 있는 것보다 작거나 큽니다.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2: %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1은(는) 프린터의 PPD에 있는 선택 항목이 아닙니다.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2: CUPS가 %1에 대해 모르는 값입니다.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>인쇄 서버 %1이(가) 사용자 이름과 암호를 요구하지만 받아들일 수 있는 것을 받지 못했습니다.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>인쇄 서버 %1이(가) 응답을 멈췄습니다. 돌아오면 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>테이프 없음</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>용지 없음</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>다른 테이프 필요</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>다른 용지 필요</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>테이프 부족</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>용지 부족</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>테이프 걸림</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>용지 걸림</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>덮개 열림</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>문 열림</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>카세트 없음</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>용지함 없음</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>출력함 가득 참</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>잉크 부족</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>잉크 없음</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>토너 부족</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>토너 없음</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>이 작업 후 일시 중지</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>새 작업은 보류됨</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>꺼져 있거나 연결되지 않음</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>인쇄 서버의 디스크가 가득 참</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>드라이버 일부가 없음</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>인쇄 서버가 드라이버를 신뢰하지 않음</translation>
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
        <translation>대기열 %1에 연결할 수 없습니다(%2). 다른 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>대기열 %1이(가) 작업을 받지 않았습니다(%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>파일 %1에 쓸 수 없습니다(%2). 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>파일 %1은(는) 통째로만 바뀌는데 그 옆에 쓸 수 없습니다(%2). 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>출력(%1)은 읽기만 하는 %2와(과) 같은 파일입니다. 다른 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>이 프로그램에서 페이지를 그리는 부분을 불러올 수 없습니다(%1). 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>프린터 설명 %1에 아무도 보증하지 않는 자체 프로그램이나 명령이 들어 있습니다: %2. 아무것도 실행되지 않았습니다.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>기본 프린터가 없습니다. 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>인쇄 서버에 대기열 %1이(가) 없습니다. 다른 프린터를 선택하십시오.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>인쇄 서버 %1이(가) 응답하지 않습니다. 응답할 때까지 다시 묻습니다.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1이(가) 자신을 끝없이 호출하여 더 묻지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1이(가) 창을 %2초 동안 기다리게 했습니다.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1에서 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1에서 오류가 발생했습니다: %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>임시 파일을 쓸 수 없습니다(%1): 임시 파일 폴더에 쓸 수 있고 공간이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1을(를) 그대로 인쇄 서버에 전달합니다. 서버에서 처리할 수도 있습니다.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>문서 %1이(가) 비어 있습니다: 인쇄할 내용이 있는 파일을 지정하십시오.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>프린터 명령</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>프린터가 작업 중입니다</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>읽는 프로그램이 중단되었습니다</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>%1페이지가 너비 %2 mm, 길이 %3 mm가 되어 읽을 수 없습니다. 테이프를 길게 하거나, 여백을 줄이거나, 라벨당 페이지 수를 줄이십시오.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>문서 %1은(는) 테이프에 배치할 수 없는 종류입니다. 그 문서를 표시하는 프로그램에서 열어 PDF나 PNG로 저장한 뒤 그 파일을 인쇄하십시오.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>작업 %1이(가) 실패했습니다: %2. 대기열에 남아 있으니 데스크톱의 프린터 설정에서 취소하거나 다시 시작하세요.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>작업 %2-%1이(가) 서버에 절반만 전송된 채 남아 있을 수 있습니다. 데스크톱의 프린터 설정에서 취소하세요.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>프린터에 %1 옵션이 없습니다. %2을(를) 뜻합니까?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>“%1”은(는) 페이지 목록이 아닙니다. 1-3,7처럼 쓰세요.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>%1페이지는 없습니다. 페이지는 1부터 셉니다.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>페이지 %1-%2은(는) 거꾸로입니다. %2-%1로 쓰세요.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>인쇄 서버는 한 작업을 최대 %1부까지 인쇄합니다(요청: %2부). 매수를 줄이십시오.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>인쇄 서버는 한 장에 %1페이지를 넣지 않습니다(number-up). 다음 중에서 선택하십시오: %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>프로그램이 일부(현재 페이지 또는 선택 영역)를 인쇄합니다.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>너무 큽니다</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>프로그램의 문서를 읽을 수 없습니다(%1). 다시 인쇄하거나 PDF로 저장한 다음 인쇄하십시오.</translation>
    </message>
</context>
</TS>
