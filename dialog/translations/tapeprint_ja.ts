<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>サイズ：</translation>
    </message>
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
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>向き：</translation>
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
        <translation>プラグイン %1 はパネルを作成できませんでした。パネルがなくても印刷できます。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>%2 のパネル「%1」には表示がありません。値は設定されているとおりに印刷されます。</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>パネル「%1」は値を渡すことができませんでした：%2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>パネル「%1」は値を元に戻すことができませんでした：%2</translation>
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
        <source>Pa&amp;nel:</source>
        <translation>パネル(&amp;N)：</translation>
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
        <source>%1 (no print queue)</source>
        <translation>%1（プリントキューなし）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
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
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
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
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>テープの長さは手動で %1 mm に設定されています。合う長さに置き換えますか？</translation>
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
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>印刷データを %1 に書き込めません（%2）。空き容量を増やすか、--output で別のファイルを指定してください。</translation>
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
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>ファイル %1 に書き込めません（%2）。--output で別のファイルを指定してください。</translation>
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
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>キュー %1 はジョブを受け付けませんでした（%2）。lpstat -p %1 -l で確認してください。</translation>
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
        <source>its code is no plug-in that this Qt can load</source>
        <translation>コードがこの Qt で読み込めるプラグインではありません</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>別のパネルインターフェイス用に作られています（%1）</translation>
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
        <source>it has no file %1</source>
        <translation>ファイル %1 がありません</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>コードを読み込めません：%1</translation>
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
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>プラグイン %1 は使用されません：%2。プラグインがなくても印刷できます。バンドルを更新するか削除してください。</translation>
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
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>プリントサーバー %1 が応答しません。サーバーを起動するか、CUPS_SERVER で別のサーバーを指定するか、--ppd ファイル でサーバーなしで印刷してください。</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>デフォルトのプリンターがありません。-d キュー でプリントキューを指定するか、--ppd ファイル でキューなしで印刷してください。</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>プリントサーバーにキュー %1 はありません。使用できるキューは lpstat -e で確認できます。</translation>
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
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>プリンターの記述が求めるプラグイン %1 はインストールされていません。プラグインがなくても印刷できます。</translation>
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
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>一時ファイルを書き込めません（%1）。一時ファイルのフォルダーの空き容量を増やしてください。</translation>
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
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>文書 %1 はテープに割り付けられません。PDF、PostScript ファイル、画像、またはプレーンテキストを印刷してください。</translation>
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
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 インチ</translation>
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
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>ファイル %1 は全体としてのみ置き換えられますが、同じ場所に書き込めません (%2)。--output で別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>出力 (%1) は、読み取り専用で扱う %2 と同じファイルです。--output で別のファイルを指定してください。</translation>
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
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>プリンター記述 %1 には、誰も保証していない独自のプログラムまたはコマンドが含まれています: %2。何も実行されていません。作成者を信頼する場合は、--trust-ppd を付けて繰り返してください。</translation>
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
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>文書 %1 のページを書き込めません（%2）。一時ファイルのフォルダーの空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>PPD ファイル %1 は途中で切れており、末尾がありません。コピーし直してください。</translation>
    </message>
</context>
</TS>
