<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>このプラグインの起動中にプログラムが終了しました。次回はもう一度試します</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>このプラグインの起動中にプログラムが終了し、次回も同じでした。バンドルが変わったらもう一度試します</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>コードを読み込めません：%1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>コードがメタデータの記述と一致しません</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>主クラス %1 がありません</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>このシステムでは動作しません</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>起動に失敗しました：%1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>起動に失敗しました</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>プリンターの記述が求めるプラグイン %1 はインストールされていません。プラグインがなくても印刷できます。</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>%2 の代わりにプラグイン %1 が使用されます。</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>プラグイン %1 は使用されません：%2。プラグインがなくても印刷できます。バンドルを更新するか削除してください。</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 を読み取れません</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 はほかの人の所有です</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>誰でも %1 に書き込めます</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>別のパネルインターフェイス用に作られています（%1）</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>より新しいパネルインターフェイス用に作られています（%1）</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>ファイル %1 がありません</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>コードがこの Qt で読み込めるプラグインではありません</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>メタデータに主クラスの名前がありません</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>プリンターのパネルを提供していません</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>別のプログラムが 1 分以上このプラグインを待っています</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>ページが選ばれていません</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>数えています…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>数量不明</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>いつになく多い量です：%1。</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>ラベル %n 枚を印刷</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>%n 枚を印刷</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>カスタム…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>解消(&amp;S)</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>解消：%1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>どれかを別のものに変えてください。</translation>
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
        <translation>カスタムサイズ</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>新しいサイズ</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>登録済み(&amp;B)：</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>登録するとき</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>名前(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>タイトル：</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>1-3,7 のように書いてください</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ：</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>奇数と偶数</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>奇数のみ</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>偶数のみ</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>そのうち：</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 1, 2, 2, 3, 3 ではなく 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 が最低、100 が最高です</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>優先度：</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>解放されたとき</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>夕方</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第 2 シフト</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第 3 シフト</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>印刷する時刻</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>印刷するとき：</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>課金情報：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>このウィンドウを閉じてもジョブは続きます</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>大きすぎる場合は縮小</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>テープに合わせる</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>テープを埋め、はみ出しは切る</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>元のサイズ</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>長辺をテープに沿わせる</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>テープに沿って</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>テープを横切って</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>テープに沿って、上下逆</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>テープを横切って、上下逆</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>テープ方向：</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>テープ幅方向：</translation>
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
        <translation>サイズ：</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>用紙いっぱいに広げ、はみ出しは切り取る</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>向き：</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>最も合う向き</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下逆</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>ラベルあたりのページ数：</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>1 枚あたりのページ数：</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>並び順：</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>左から右、次に下</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>右から左、次に下</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>下、次に左から右</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>下、次に右から左</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>枠：</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>一重線</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>二重線</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>1 枚に複数ページを置くときの設定です</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>お知らせ</translation>
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
        <translation>プリンターに装着されているもの</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>プラグイン %1 はパネルを作成できませんでした。パネルがなくても印刷できます。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>%2 のパネル「%1」には表示がありません。値は設定されているとおりに印刷されます。</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>プラグイン %1 は使用されません：%2。プラグインがなくても印刷できます。</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>プラグイン %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>%2 のパネル「%1」</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>プラグイン %1 が送ったオプションはジョブに入れられないため省かれました：%2。</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>パネルが %1 を際限なく変更します（%2）。現在の値で印刷されます。</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>プラグイン %1 は、プリンターの記述にない %2=%3 を送ります。</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1は値を渡すことができませんでした</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1は値を元に戻すことができませんでした</translation>
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
        <translation>プリンターの記述に用紙がありません。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>カスタム（%1）</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>プリントサーバー %1 が、印刷する人の確認を求めています。</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>受け付けられませんでした。</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P)：</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N)：</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>プリセット %1 は置き換えられます。</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>プリセット %1 はすでにあります。</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>「%1」を使う</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>前回と同じ</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>プリセット(&amp;S)：</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>プリセットの保存、名前の変更、削除</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>名前を付けて保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>上書き保存(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>既定にする(&amp;M)</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>プリンターの指定がないときにこれで印刷します</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>プリセットは印刷キューごとに保存されますが、ここにはキューがありません。</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>プリセット %1 はもうありません。</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセット名の変更</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>プリセット %1 を削除しますか？ほかのプログラムからも使えなくなります。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>前のラベル</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>次のラベル</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>ラベル %1 / %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>ページの一部が切れています。</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>このページには何も描かれていません。</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>この色のインクはこのテープでは見えにくくなります。</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1、テープ %2</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>ラベル %n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>プレビューはありません：%1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>プログラムのページは、このサイズに合わせて後から届きます。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>ページ %1 / %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 を印刷</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>テープ(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C)：</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定内容</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>元に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>ダイアログを開いたときの値に戻します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>このパネルには表示がありません。</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>用紙(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>長さを合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>描かれた内容と両端の余白に必要な長さにします</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>常に合わせる(&amp;K)</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>文書には何も描かれていません。テープの長さは変わりません。</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>文書に必要なテープがプリンターの上限を超えるため、縮小します。</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>プリンターのオプション</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>コマンドを表示(&amp;W)…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>同じジョブをシェルのコマンドで表します</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>どれかを別のものに変えてください。</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>変更して印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>そのまま印刷(&amp;S)</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>テープの長さは手動で %1 に設定されています。合う長さに置き換えますか？</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>設定(&amp;N)：</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>ジョブを印刷しています。</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>プリンターにまだ接続中です。</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>先にプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>このプリンターではここに選択肢がありません。</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>このプリンター、テープ、またはほかの設定では使えません。</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続しています…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>プリンターを選んでください</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>プリンターはもうありません。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを取り消す</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>設定のこのページのヘルプ</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – 接続しています…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1が設定を受け付けません。何も印刷されていません。</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>単位はこのウィンドウでのみ有効です。%1 に書き込めません。</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>このプリンターには記述がなく、印刷するものはそのまま渡されます。そのためプレビューはなく、何ページ出るかは分かりません。</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>プレビューはありません：プリンターの記述に用紙がありません。</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>「%1」は「%2」により無効です：このプリンター、選んだテープ、またはそこの別の設定では使えません。</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>「%1」は「%2」により無効です：このプリンターには選べるものがありません。</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>「%1」は「%2」の設定と一緒に使えません。</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>もう一度尋ねる(&amp;A)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>取り消しています…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信しています…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>プリントサーバーが応答しません。応答すればプリンターも戻ります。</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>既定のプリンターがありません。プリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>プリンター %1 はもうありません。別のプリンターを選ぶか、戻るまで待ってください。設定は保たれます。</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>プリンター %1 の記述がサーバー上で変わりました。印刷する前に再読み込みしてください。</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>前回使ったプリンター %1 はもうありません。</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>代わりにプリンター %1 を使います。</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>プリンター %1 はプリントサーバーで変更されましたが、パスワードがないため記述を確認していません。印刷する前にもう一度確認してください。</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1（印刷キューなし）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1（既定）</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>もうありません</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>場所：%1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>クラスです。空いているプリンターがジョブを印刷します。</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>ネットワークで見つかりました</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a printer and its state</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterPopUp</name>
    <message>
        <source>Search by name, description or location</source>
        <translation>名前、説明、場所で検索</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>プリンターを検索</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>印刷する代わりにジョブをファイルに保存します</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>&amp;PDF として保存…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>プリンターのデータを保存(&amp;D)…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>プリンターのデータを保存</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文書 (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>プリンターのデータ (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>シェルのコマンド</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>tapeprint による同じジョブ(&amp;T)：</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>lp による同じオプション（割り付けはしません）(&amp;L)：</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>%1 のコマンドをコピー</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>設定内容</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>テープのプレビュー</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>長さ %1、幅 %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>用紙のプレビュー</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1。ページの一部が切れています</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>ここに表示する長さの単位</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>ミリメートル(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>インチ(&amp;I)</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>長さの単位</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>ミリメートル</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>フィルターを起動できません（%1）。CUPS が完全にインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>%1 のフィルターは書類 %2 を印刷できませんでした：%3。</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>プログラム cupsfilter がありません。パッケージ cups をインストールしてください。</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>%1 のフィルターは書類から何も出力しませんでした。印刷するページがあるか確認してください。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>書類 %1 を読み込めません（%2）。読み込み可能なファイルを指定してください。</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>プリントサーバーは書類 %1 を受け付けませんでした（%2）。キューで印刷できる種類の書類か確認してください。</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>キュー %1 に接続できません（%2）。使用できるキューは lpstat -e で確認できます。</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 は、プリンターの PPD にある選択肢ではありません。</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>オプション %1 はプリントサーバー自身の属性 %2 とみなされるため、プリンターのフィルターに届きません。PPD で別の名前を付けてください。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>PPD ファイル %1 を読み込めません（%2）。読み込み可能な PPD ファイルを指定してください。</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>PPD ファイル %1 は正しくありません（%2 行目：%3）。ファイルを修正するか、別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>キュー %1 の PPD をプリントサーバーから取得できません（%2）。キューが設定されているか確認してください。</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>（キュー %1）</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>印刷データは %1 にあります（%2 バイト）。</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>ジョブ %1-%2：%3。</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません：%2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 は壊れています：ページを読み取れません。</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 は PDF 文書ではありません。</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 はパスワードで保護されています。パスワードなしで保存し、それを印刷してください。</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 にはページがありません。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>パネル「%1」は %2 を範囲と刻みに合わせます。ジョブには %3 ではなく %4 が入ります。</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 は、プリンターの PPD にある選択肢ではありません。ジョブには %3=%4 が入ります。</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>bubblewrap がないため、プリンターのフィルターは隔離されずに実行されます。パッケージ bubblewrap をインストールしてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>このコンピューターでは許可されていないため (%1)、プリンターのフィルターは隔離されずに実行されます。ユーザーが名前空間を作れるようにしてください。</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>フィルターは文書 %1 をページにできませんでした: %2。</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>画像 %1（%2 x %3 ドット）を展開できません（%4）。小さくするか、PDF として印刷してください。</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>画像 %1 は壊れています（%2）。作り直すか、別の画像を指定してください。</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>文書 %1 はパスワードで保護されています。パスワードなしで保存し、それを印刷してください。</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>文書 %1 は壊れています（%2）。作り直すか、別の文書を指定してください。</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>文書 %1 にはページがありません。印刷するもののある文書を指定してください。</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>ラベルを割り付けられません（%1）。文書が完全であること、一時ファイルのための空き容量があることを確認してください。</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>このプリンターの記述では、選んだ長さのページを使えません。ページの長さは %1 mm のままで、長さはドライバーに任されます。</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>テープ本来の長さにこれほど近い長さは、印刷システムによってその長さ（%1 mm）になります。</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>余白のために、テープに印刷できる部分が残りません。テープを長くするか、余白を小さくしてください。</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>文書のページが 1 つも選ばれていません。ページ範囲を変更してください。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>プリンターにある %2=%3 は、パネル「%1」では選べません。ジョブには %4=%5 が入ります。</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>書類 %1 がなくなりました。何も印刷されていません。元に戻すか、別の書類を開いてください。</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>書類 %1 は開いた後に変更されました。何も印刷されていません。もう一度開いてください。</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>どのプリンター記述よりも大きいファイルです</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>PPD ファイル %1 を一時ファイルに保存できません (%2)。空きを作ってください。</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>印刷を中止しました。</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>%1 のフィルターは書類 %2 の処理を終えなかったため、停止しました。</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>プリンター記述 %1 は信頼されており、独自のプログラムまたはコマンドを実行します: %2。</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>この名前のファイルがすでにあります</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>パイプまたはデバイスです</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>キュー %1 の PPD を一時ファイルに保存できません (%2)。空きを作ってください。</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>プリンターのデータを標準出力に送りました (%1 バイト)。</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>文書 %2 の %1 ページには大きさがありません。そのページを除くか、作り直してください。</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>別の用紙の長さにこれほど近い長さは、印刷システムによってその長さ（%1 mm）になります。</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>%1 MiB を超えるメモリーが必要です</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD ファイル %1 は途中で切れており、末尾がありません。コピーし直してください。</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>選んだページをまとめられません（%1）。文書が壊れていないこと、一時ファイルの空きがあることを確認してください。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>「%1」が「%2」になります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>「%1」が「%2」から「%3」に変わります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>「%1」は「%2」と一緒に使えません。</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 は一緒に使えません。</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>高さ</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>%1 に書き込めないため、サイズは登録されません。</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>対になっていない波括弧と見えない文字は使わないでください。</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>%1～%2 文字で入力してください。</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>%1 文字以上で入力してください。</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>%1～%2 桁の数字で入力してください。</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>%1 桁以上の数字で入力してください。</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>%1～%2 インチの長さを入力してください。</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>%1～%2 mm の長さを入力してください。</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>%1～%2 の整数を入力してください。</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>%1～%2 の数を入力してください。</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>オプション %1 の値は波括弧で囲まれていますが、プリントサーバーはこれを取り除きます。%1 には普通の値を指定してください。</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 は印刷システムの知らない数です。1 ページごとに 1 枚になります。</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>オプション %1 はテープでは効きません。ページの置き方は print-scaling、orientation-requested、position、number-up で指定してください。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>プリントサーバーは理由を伝えていません</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>プリントサーバーからジョブ %1 の情報が得られなくなりました。</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>ジョブ %1 は失敗しました：%2。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>ジョブ %1 は取り消されました。</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>ジョブ %1 の印刷が終わりました。</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>ジョブ %1 は保留中です。解放されるまで待機します。</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>ジョブ %1 は待機中です：%2。</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>ジョブ %1 を印刷しています。</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>ジョブ %1 はほかのジョブの後で待機中です：%2。</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>ジョブ %1 はプリンターを待っています。</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>ジョブ %1 がどうなったかは分かりません。</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>ジョブ %1 を取り消せません（%2）。</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>設定を次回のために保存できません：%1 に書き込めません。</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>プリセットのファイル %1 を読み込めません（%2）。</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>CUPS がプリセットに保存できるより多くのオプションがあります。</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>CUPS がプリセットに保存できない値のオプションがあります。</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>プリセットのファイル %1 に書き込めません（%2）。ファイルは元のままです。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>一般</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>PPD ファイル %1 は PPD としては大きすぎます。PPD ファイルを指定してください。</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 にはプリセット %2 がありません。</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>プリセット %1 はすでにあります。</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>プリセットには名前が必要です。</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>名前に空白、斜線、引用符、# &lt; &gt; を含むプリセットは CUPS に保存できません。</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>この名前は CUPS に保存できる長さを超えています。</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>プリセットのオプション %1=%2 は、このプリンターにはもうありません。上書き保存するまでプリセットに残ります。</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>プリンター %1 はジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>プリンター %1 はジョブを受け付けていません：%2。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>プリンター %1 は停止しています。再開するまでジョブは待機します。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>プリンター %1 は停止しています：%2。再開するまでジョブは待機します。</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>プリンター %1 からの通知：%2。</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>キュー %1 には、プリンターのデータを作るための記述がありません。代わりに PDF を保存してください。</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>PDF は %1 にあります（%2 バイト）。</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>キュー %1 はジョブを受け付けていません。lpstat -a %1 で確認してください。</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 はサイズではありません。Custom.幅x長さmm、または in、cm、pt を付けて書いてください。</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2：このプリンターは備わっているサイズしか使えません。</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 は、プリンターで使える範囲より小さいか大きすぎます。</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2：%3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 は、プリンターの PPD にある選択肢ではありません。</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2：CUPS は %1 のこの値を知りません。</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>プリントサーバー %1 はユーザー名とパスワードを求めていますが、有効なものが渡されませんでした。</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>プリントサーバー %1 が応答しなくなりました。復旧してからもう一度試してください。</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>テープ切れ</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>別のテープが必要</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>別の用紙が必要</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>テープ残りわずか</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>テープ詰まり</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>用紙詰まり</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>カセットが入っていません</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>排紙トレイが満杯</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>インク残りわずか</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>インク切れ</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>トナー残りわずか</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>このジョブの後で一時停止</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>電源が切れているか接続されていません</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>プリントサーバーのディスクがいっぱいです</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>ドライバーの一部がありません</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>プリントサーバーがドライバーを信頼していません</translation>
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
        <translation>キュー %1 に接続できません（%2）。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>キュー %1 はジョブを受け付けませんでした（%2）。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>ファイル %1 に書き込めません（%2）。別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>ファイル %1 は全体としてのみ置き換えられますが、同じ場所に書き込めません（%2）。別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>出力（%1）は、読み取り専用で扱う %2 と同じファイルです。別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>このプログラムのページを描く部分を読み込めません（%1）。もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>プリンター記述 %1 には、誰も保証していない独自のプログラムまたはコマンドが含まれています：%2。何も実行されていません。</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>既定のプリンターがありません。プリンターを選んでください。</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>プリントサーバーにキュー %1 はありません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>プリントサーバー %1 が応答しません。応答するまで問い合わせを続けます。</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1が自分自身を際限なく呼び出すため、それ以上問い合わせませんでした。</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1がウインドウを %2 秒待たせました。</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1が失敗しました。</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1が失敗しました：%2。</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>一時ファイルを書き込めません（%1）：一時ファイルのフォルダーに書き込めるか、空きがあるかを確認してください。</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 はそのままプリントサーバーに渡されます。サーバーで処理できるかもしれません。</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>文書 %1 は空です：印刷する内容のあるファイルを指定してください。</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>プリンターコマンド</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>プリンターは動作中です</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>読み取るプログラムが途中で終了しました</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>ページ %1 は幅 %2 mm、長さ %3 mm になり、読むことができません。テープを長くするか、余白を小さくするか、ラベルあたりのページ数を減らしてください。</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>文書 %1 はテープに割り付けられない種類です。表示できるプログラムで開き、PDF または PNG として保存して、それを印刷してください。</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>ジョブ %1 は失敗しました：%2。キューに残っています。デスクトップのプリンター設定で取り消すか、再開してください。</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>ジョブ %2-%1 は途中まで送られたままサーバーに残っている可能性があります。デスクトップのプリンター設定で取り消してください。</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>プリンターにオプション %1 はありません。%2 のことですか？</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>「%1」はページの並びではありません。1-3,7 のように入力してください。</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>%1 ページはありません。ページは 1 から数えます。</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>ページ %1-%2 は逆順です。%2-%1 と入力してください。</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>プリントサーバーが 1 つのジョブで作れるのは %1 部までです（指定は %2 部）。部数を減らしてください。</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>プリントサーバーは 1 枚に %1 ページを置けません（number-up）。次のどれかを選んでください：%2。</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>プログラムは一部（現在のページまたは選択範囲）を印刷します。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>プログラムの書類を読み取れません（%1）。もう一度印刷するか、PDF として保存してから印刷してください。</translation>
    </message>
</context>
</TS>
