<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>desk</name>
    <message>
        <source>Tuner's desk</source>
        <translation>調整デスク</translation>
    </message>
    <message>
        <source>&amp;Desk</source>
        <translation>デスク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Close the desk</source>
        <translation>デスクを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Service console</source>
        <translation>サービスコンソール</translation>
    </message>
    <message>
        <source>Calls between the applications and the unit</source>
        <translation>アプリケーションと本体の間のやり取り</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>What is touched as a script, and reports of problems</source>
        <translation>操作をスクリプトに記録し、問題を報告します</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録開始</translation>
    </message>
    <message>
        <source>%1 touches, %2 s</source>
        <translation>%1 回の操作、%2 秒</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>記録中：%1</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>まだ記録はありません</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>記録を保存</translation>
    </message>
    <message>
        <source>Script (*.js)</source>
        <translation>スクリプト (*.js)</translation>
    </message>
    <message>
        <source>Saved in %1; headunit --script plays it</source>
        <translation>%1 に保存しました。headunit --script で再生できます</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>Curves of other programs</source>
        <translation>他のプログラムのカーブ</translation>
    </message>
    <message>
        <source>Filter lists in, responses and the curve out</source>
        <translation>フィルターリストの読み込みと、特性・カーブの書き出し</translation>
    </message>
    <message>
        <source>"%1": %2 dB remain on average, %3 dB at most, at %4 Hz</source>
        <translation>「%1」：残差は平均 %2 dB、最大 %3 dB（%4 Hz）</translation>
    </message>
    <message>
        <source>Import a filter list of Equalizer APO or REW to see what the bands make of it</source>
        <translation>Equalizer APO または REW のフィルターリストを読み込むと、バンドでの再現が見られます</translation>
    </message>
    <message>
        <source>Import a curve</source>
        <translation>カーブを読み込む</translation>
    </message>
    <message>
        <source>Filter list (*.txt)</source>
        <translation>フィルターリスト (*.txt)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>カーブ</translation>
    </message>
    <message>
        <source>Export the curve for Equalizer APO</source>
        <translation>Equalizer APO 用にカーブを書き出す</translation>
    </message>
    <message>
        <source>Export the responses of the outputs</source>
        <translation>各出力の特性を書き出す</translation>
    </message>
    <message>
        <source>Response (*.frd)</source>
        <translation>特性 (*.frd)</translation>
    </message>
    <message>
        <source>Response, REW (*.txt)</source>
        <translation>特性、REW (*.txt)</translation>
    </message>
    <message>
        <source>Shows what the bands make of a filter list; Apply puts it in force</source>
        <translation>フィルターリストをバンドでどう再現するかを表示します。「適用」で有効になります</translation>
    </message>
    <message>
        <source>Makes the curve that is shown the custom curve</source>
        <translation>表示中のカーブをカスタムカーブにします</translation>
    </message>
    <message>
        <source>Export the curve…</source>
        <translation>カーブを書き出す…</translation>
    </message>
    <message>
        <source>Writes the equaliser in force as filters</source>
        <translation>現在のイコライザーをフィルターとして書き出します</translation>
    </message>
    <message>
        <source>Export the responses…</source>
        <translation>特性を書き出す…</translation>
    </message>
    <message>
        <source>Writes the response of each output and of their sum, a file each: Hz, dB, degrees</source>
        <translation>各出力とその和の特性を 1 つずつファイルに書き出します：Hz、dB、度</translation>
    </message>
    <message>
        <source>Bands of the equaliser</source>
        <translation>イコライザーのバンド</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>バンド</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Taken as</source>
        <translation>採用値</translation>
    </message>
    <message>
        <source>Left at the band</source>
        <translation>バンドの残差</translation>
    </message>
    <message>
        <source>Tape measure</source>
        <translation>メジャー</translation>
    </message>
    <message>
        <source>Distances of the loudspeakers become their delays</source>
        <translation>スピーカーまでの距離から遅延を求めます</translation>
    </message>
    <message>
        <source>Measure from the listener's head to each loudspeaker</source>
        <translation>リスナーの頭から各スピーカーまでを測ります</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>フロント左</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>フロント右</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>リア左</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>リア右</translation>
    </message>
    <message>
        <source>Subwoofer left</source>
        <translation>サブウーファー左</translation>
    </message>
    <message>
        <source>Subwoofer right</source>
        <translation>サブウーファー右</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>スピーカー</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Exact delay</source>
        <translation>正確な遅延</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>丸め</translation>
    </message>
    <message>
        <source>A loudspeaker is too near for the rest: no delay is longer than %1 ms</source>
        <translation>近すぎるスピーカーがあります。遅延は最大 %1 ms です</translation>
    </message>
    <message>
        <source>Sets the six delays, as one step</source>
        <translation>6 つの遅延を 1 ステップで設定します</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Of the air in the car: sound is faster where it is warm</source>
        <translation>車内の気温：暖かいほど音は速く進みます</translation>
    </message>
    <message>
        <source>%1 in centimetres</source>
        <translation>%1（センチメートル）</translation>
    </message>
    <message>
        <source>%1 in inches</source>
        <translation>%1（インチ）</translation>
    </message>
    <message>
        <source>Report a problem…</source>
        <translation>問題を報告…</translation>
    </message>
    <message>
        <source>Archive (*.tar.gz)</source>
        <translation>アーカイブ (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saved in %1; look into it before you send it</source>
        <translation>%1 に保存しました。送る前に内容を確認してください</translation>
    </message>
    <message>
        <source>Records what is touched as a script. The unit starts anew, at its home screen.</source>
        <translation>操作をスクリプトとして記録します。本機はホーム画面から新たに始まります。</translation>
    </message>
    <message>
        <source>Saves the recording as a script that headunit --script plays</source>
        <translation>headunit --script で再生できるスクリプトとして保存します</translation>
    </message>
    <message>
        <source>Packs set-up, recording, console and versions into one archive that does not name you</source>
        <translation>設定・記録・コンソール・バージョンを、あなたの名前を含まないアーカイブにまとめます</translation>
    </message>
    <message>
        <source>Recording as a script</source>
        <translation>スクリプトとしての記録</translation>
    </message>
    <message>
        <source>A recording starts as the unit does: on the home screen, with what is set now.</source>
        <translation>記録は本機の起動と同じく、ホーム画面から今の設定で始まります。</translation>
    </message>
    <message>
        <source>What went wrong, for the report</source>
        <translation>何が起きたか（報告用）</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Top bar</source>
        <translation>トップバー</translation>
    </message>
    <message>
        <source>Tab bar</source>
        <translation>タブバー</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>ホーム画面</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>ステータスバー</translation>
    </message>
    <message>
        <source>Hard keys</source>
        <translation>ハードキー</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>タッチ</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼び出し</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Announcement</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Posted touch</source>
        <translation>送信ジェスチャー</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み出し</translation>
    </message>
    <message>
        <source>Log line</source>
        <translation>ログ行</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>種別</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>意味</translation>
    </message>
    <message>
        <source>finger down on %1</source>
        <translation>指が触れた：%1</translation>
    </message>
    <message>
        <source>finger up on %1</source>
        <translation>指が離れた：%1</translation>
    </message>
    <message>
        <source>key of the keyboard</source>
        <translation>キーボードのキー</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%2 行中 %1 行</translation>
    </message>
    <message>
        <source>paused, %1 more</source>
        <translation>一時停止中、ほか %1 行</translation>
    </message>
    <message>
        <source>Every page</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Save the rows shown</source>
        <translation>表示中の行を保存</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON 行 (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>%1 に保存しました</translation>
    </message>
    <message>
        <source>Words that stand in the row</source>
        <translation>行に含まれる語</translation>
    </message>
    <message>
        <source>Filter by words</source>
        <translation>語で絞り込む</translation>
    </message>
    <message>
        <source>Shows the rows in which all of these words stand, in call, meaning or page</source>
        <translation>呼び出し・意味・ページにこれらの語がすべて含まれる行を表示</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>種別</translation>
    </message>
    <message>
        <source>Which classes of rows are shown. Reads are recorded only while they are.</source>
        <translation>表示する行の種別。読み出しは表示中のみ記録されます。</translation>
    </message>
    <message>
        <source>Filter by page</source>
        <translation>ページで絞り込む</translation>
    </message>
    <message>
        <source>Shows what this page of the unit caused</source>
        <translation>このページが引き起こしたものを表示</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Holds the rows still; what comes meanwhile is shown afterwards</source>
        <translation>行を止めます。その間の行は後で表示されます</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>追従</translation>
    </message>
    <message>
        <source>Keeps the newest row in sight</source>
        <translation>最新の行を表示し続ける</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Forgets all rows</source>
        <translation>すべての行を消去</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation>選択した行をテキストとしてコピー</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Saves the rows shown as text or as JSON lines</source>
        <translation>表示中の行をテキストまたは JSON 行として保存</translation>
    </message>
    <message>
        <source>Rows of the service console</source>
        <translation>サービスコンソールの行</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 を保存中</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>セットアップ</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>セットアップ</translation>
    </message>
    <message>
        <source>Keep, compare, undo: what is set, and what was</source>
        <translation>保存・比較・取り消し</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直す(&amp;R)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Takes the last change back (%1)</source>
        <translation>最後の変更を元に戻す (%1)</translation>
    </message>
    <message>
        <source>Reset: %1 settings</source>
        <translation>リセット：%1 項目</translation>
    </message>
    <message>
        <source>Crossover flat: %1 settings</source>
        <translation>クロスオーバーをフラット：%1 項目</translation>
    </message>
    <message>
        <source>Delays flat: %1 settings</source>
        <translation>ディレイをゼロ：%1 項目</translation>
    </message>
    <message>
        <source>%1: %2 settings</source>
        <translation>%1：%2 項目</translation>
    </message>
    <message>
        <source>Changed while the desk was closed</source>
        <translation>デスクを閉じている間の変更</translation>
    </message>
    <message>
        <source>A/B</source>
        <translation>A/B</translation>
    </message>
    <message>
        <source>A is in force</source>
        <translation>A を使用中</translation>
    </message>
    <message>
        <source>B is in force</source>
        <translation>B を使用中</translation>
    </message>
    <message>
        <source>A is now a copy of B</source>
        <translation>A は B のコピーになりました</translation>
    </message>
    <message>
        <source>B is now a copy of A</source>
        <translation>B は A のコピーになりました</translation>
    </message>
    <message>
        <source>Choose or import a set-up to see what it would change</source>
        <translation>セットアップを選ぶか読み込むと、変更点が表示されます</translation>
    </message>
    <message>
        <source>"%1" changes %2 values</source>
        <translation>「%1」は %2 項目を変更します</translation>
    </message>
    <message>
        <source>"%1" is in force</source>
        <translation>「%1」を使用中</translation>
    </message>
    <message>
        <source>"%1" is deleted</source>
        <translation>「%1」を削除しました</translation>
    </message>
    <message>
        <source>Keep the present set-up under a name</source>
        <translation>現在のセットアップに名前を付けて保存</translation>
    </message>
    <message>
        <source>Export the present set-up</source>
        <translation>現在のセットアップを書き出す</translation>
    </message>
    <message>
        <source>Import a set-up</source>
        <translation>セットアップを読み込む</translation>
    </message>
    <message>
        <source>Set-up (*.txt)</source>
        <translation>セットアップ (*.txt)</translation>
    </message>
    <message>
        <source>Keep as…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Keeps the present set-up under a name</source>
        <translation>現在のセットアップに名前を付けて保存します</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Puts the set-up that is shown in force</source>
        <translation>表示中のセットアップを適用します</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Deletes the chosen set-up</source>
        <translation>選択したセットアップを削除します</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込み…</translation>
    </message>
    <message>
        <source>Shows what a set-up file would change; Apply puts it in force</source>
        <translation>ファイルによる変更点を表示します。適用で反映します</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出し…</translation>
    </message>
    <message>
        <source>Writes the present set-up into a file, for another unit</source>
        <translation>別の本体用に現在のセットアップをファイルに書き出します</translation>
    </message>
    <message>
        <source>Changes between two set-ups; what you change goes to the one in force</source>
        <translation>二つのセットアップを切り替えます。変更は使用中の方に入ります</translation>
    </message>
    <message>
        <source>Copy to the other</source>
        <translation>もう一方へコピー</translation>
    </message>
    <message>
        <source>Makes the other one of A and B a copy of the one in force</source>
        <translation>A と B のもう一方を使用中のもののコピーにします</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Every change; touch one to go back or forth to it</source>
        <translation>すべての変更。選ぶとその時点へ移動します</translation>
    </message>
    <message>
        <source>Before all changes</source>
        <translation>すべての変更の前</translation>
    </message>
    <message>
        <source>Changes of the set-up</source>
        <translation>セットアップによる変更点</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>In the set-up</source>
        <translation>セットアップ</translation>
    </message>
    <message>
        <source>%1 dB to match</source>
        <translation>音量合わせ %1 dB</translation>
    </message>
    <message>
        <source>Match levels</source>
        <translation>音量を合わせる</translation>
    </message>
    <message>
        <source>Makes the louder of A and B as quiet as the other, so that the ear compares the sound</source>
        <translation>A と B の大きい方を下げ、音質を聴き比べられるようにします</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>周波数特性</translation>
    </message>
    <message>
        <source>What the loudspeakers and their sum make of every frequency</source>
        <translation>各スピーカーとその合成の周波数ごとの出力</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Shows or hides this curve</source>
        <translation>この曲線を表示または非表示にします</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>位相</translation>
    </message>
    <message>
        <source>Shows the phase below the magnitude</source>
        <translation>振幅の下に位相を表示します</translation>
    </message>
    <message>
        <source>Group delay</source>
        <translation>群遅延</translation>
    </message>
    <message>
        <source>Shows the group delay below the magnitude</source>
        <translation>振幅の下に群遅延を表示します</translation>
    </message>
    <message>
        <source>With delays</source>
        <translation>ディレイ込み</translation>
    </message>
    <message>
        <source>Off: as if the delays made up for the distances of the loudspeakers</source>
        <translation>オフ: ディレイがスピーカーの距離を補正しているものとして表示します</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Keeps the present curves beside the coming ones</source>
        <translation>現在の曲線を以後の曲線と並べて残します</translation>
    </message>
    <message>
        <source>Zoom back</source>
        <translation>前の表示</translation>
    </message>
    <message>
        <source>Shows the part that was shown before; a right click, too</source>
        <translation>前に表示していた範囲に戻します（右クリックでも可）</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Shows all frequencies</source>
        <translation>すべての周波数を表示します</translation>
    </message>
    <message>
        <source>Saves the diagrams as a picture, PNG or SVG</source>
        <translation>図を画像（PNG または SVG）として保存します</translation>
    </message>
    <message>
        <source>Save the diagrams</source>
        <translation>図を保存</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>画像 (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>図面 (*.svg)</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>振幅</translation>
    </message>
    <message>
        <source>Point at a curve to read its values; draw a frame to see more of it</source>
        <translation>曲線を指すと値が読めます。枠を描くと拡大します</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>(held %1)</source>
        <translation>（保持 %1）</translation>
    </message>
    <message>
        <source>The main volume is 0: nothing is heard</source>
        <translation>メイン音量が 0 のため、何も聞こえません</translation>
    </message>
    <message>
        <source>Hole of %1 dB at %2 Hz</source>
        <translation>%2 Hz に %1 dB の谷</translation>
    </message>
    <message>
        <source>Hole of more than %1 dB at %2 Hz</source>
        <translation>%2 Hz に %1 dB を超える谷</translation>
    </message>
    <message>
        <source>Overlap of %1 dB at %2 Hz</source>
        <translation>%2 Hz に重なりによる %1 dB の山</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>try phase %1° for the subwoofers</source>
        <translation>サブウーファーの位相 %1° を試してください</translation>
    </message>
    <message>
        <source>try %1 Hz as the subwoofers' low-pass</source>
        <translation>サブウーファーのローパス %1 Hz を試してください</translation>
    </message>
    <message>
        <source>try %1 Hz as the front high-pass</source>
        <translation>フロントのハイパス %1 Hz を試してください</translation>
    </message>
    <message>
        <source>try %1 Hz as the rear high-pass</source>
        <translation>リアのハイパス %1 Hz を試してください</translation>
    </message>
    <message>
        <source>it comes of the delays, which differ</source>
        <translation>ディレイの違いによるものです</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>メーター</translation>
    </message>
    <message>
        <source>How loud each loudspeaker is, and what its limiter takes away</source>
        <translation>各スピーカーのレベルとリミッターの減衰量</translation>
    </message>
    <message>
        <source>Limiter front</source>
        <translation>リミッター フロント</translation>
    </message>
    <message>
        <source>Limiter rear</source>
        <translation>リミッター リア</translation>
    </message>
    <message>
        <source>Limiter sub</source>
        <translation>リミッター サブ</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>再生していません</translation>
    </message>
    <message>
        <source>Nothing plays: no sound server answers</source>
        <translation>再生していません: サウンドサーバーが応答しません</translation>
    </message>
    <message>
        <source>Nothing plays: there is no sound device</source>
        <translation>再生していません: 音声デバイスがありません</translation>
    </message>
    <message>
        <source>Nothing plays: the unit makes no sound here</source>
        <translation>再生していません: この環境では音を出しません</translation>
    </message>
    <message>
        <source>Nothing plays: what was to be played cannot be read</source>
        <translation>再生していません: 再生するものを読み込めません</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>%1 Hz, %2</source>
        <translation>%1 Hz、%2</translation>
    </message>
    <message>
        <source>+%1 dB at %2: turn down by %1 dB or expect the limiter</source>
        <translation>%2 で +%1 dB: %1 dB 下げないとリミッターが働きます</translation>
    </message>
    <message>
        <source>Headroom of %1 dB; least of it at %2</source>
        <translation>ヘッドルーム %1 dB（最小は %2）</translation>
    </message>
    <message>
        <source>Forgets the highest values and the clips</source>
        <translation>最大値とクリップ数を消去します</translation>
    </message>
    <message>
        <source>What the limiter takes away, in dB</source>
        <translation>リミッターの減衰量（dB）</translation>
    </message>
    <message>
        <source>Peak of the samples, held for 1.5 s, falling by 20 dB in 1.7 s (IEC 60268-18); within it the mean of 300 ms</source>
        <translation>サンプルのピーク。1.5 秒保持し、1.7 秒で 20 dB 下がります（IEC 60268-18）。内側は 300 ms の平均</translation>
    </message>
    <message>
        <source>The most that the limiter took away since the reset, in dB</source>
        <translation>リセット後のリミッター最大減衰量（dB）</translation>
    </message>
    <message>
        <source>Highest sample since the reset, in dB of full scale</source>
        <translation>リセット後の最大サンプル（dBFS）</translation>
    </message>
    <message>
        <source>Mean of 300 ms in dB; a sine of full scale reads 0 dB (AES17)</source>
        <translation>300 ms の平均（dB）。フルスケールの正弦波が 0 dB です（AES17）</translation>
    </message>
    <message>
        <source>How often the sound went beyond full scale since the reset, and the limiter caught it</source>
        <translation>リセット後にフルスケールを超え、リミッターが抑えた回数</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>For a tone of full scale at the frequency that the settings raise most</source>
        <translation>設定が最も持ち上げる周波数のフルスケールの音に対する値</translation>
    </message>
</context>
</TS>
