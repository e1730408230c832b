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
        <source>What happens between the applications and the unit</source>
        <translation>アプリケーションと本体の間のやり取り</translation>
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
</context>
</TS>
