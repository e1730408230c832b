<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="3">
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
    <message id="14">
        <source>Apple CarPlay</source>
        <translation>Apple CarPlay</translation>
    </message>
    <message id="15">
        <source>Android Auto</source>
        <translation>Android Auto</translation>
    </message>
    <message id="16">
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message id="229">
        <source>Classic</source>
        <translation>クラシック</translation>
    </message>
    <message id="231">
        <source>Subwoofer</source>
        <translation>サブ</translation>
    </message>
    <message id="232">
        <source>Dynamic</source>
        <translation>ダイナミック</translation>
    </message>
    <message id="233">
        <source>Pop</source>
        <translation>ポップ</translation>
    </message>
    <message id="234">
        <source>Rock</source>
        <translation>ロック</translation>
    </message>
    <message id="235">
        <source>Hip Hop</source>
        <translation>ヒップホップ</translation>
    </message>
    <message id="241">
        <source>Jazz</source>
        <translation>ジャズ</translation>
    </message>
    <message id="262">
        <source>Rear</source>
        <translation>リア</translation>
    </message>
    <message id="361">
        <source>Radio</source>
        <translation>ラジオ</translation>
    </message>
    <message id="427">
        <source>SiriusXM</source>
        <translation>SiriusXM</translation>
    </message>
    <message id="439">
        <source>Loudness</source>
        <translation>ラウドネス</translation>
    </message>
    <message id="681">
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message id="969">
        <source>This will reset all of your audio settings.</source>
        <translation>すべてのオーディオ設定を初期化します。</translation>
    </message>
    <message id="970">
        <source>Do you want to proceed?</source>
        <translation>続行しますか？</translation>
    </message>
    <message id="971">
        <source>Yes, Reset my Audio Settings</source>
        <translation>はい、設定を初期化する</translation>
    </message>
    <message id="972">
        <source>Alert</source>
        <translation>確認</translation>
    </message>
    <message id="973">
        <source>Reset Successful</source>
        <translation>初期化しました</translation>
    </message>
    <message id="1065">
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message id="1066">
        <source>Equalizer</source>
        <translation>イコライザー</translation>
    </message>
    <message id="1067">
        <source>Factory EQ</source>
        <translation>プリセットEQ</translation>
    </message>
    <message id="1068">
        <source>Crossover</source>
        <translation>クロスオーバー</translation>
    </message>
    <message id="1069">
        <source>Timing</source>
        <translation>タイムアライメント</translation>
    </message>
    <message id="1070">
        <source>Audio Settings</source>
        <translation>オーディオ設定</translation>
    </message>
    <message id="1071">
        <source>Volume Settings</source>
        <translation>音量設定</translation>
    </message>
    <message id="1072">
        <source>Source Gain</source>
        <translation>ソースレベル</translation>
    </message>
    <message id="1073">
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
    <message id="1074">
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message id="1076">
        <source>Front</source>
        <translation>フロント</translation>
    </message>
    <message id="1077">
        <source>Slope</source>
        <translation>スロープ</translation>
    </message>
    <message id="1078">
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message id="1079">
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message id="1081">
        <source>Source Gain</source>
        <translation>ソースレベル</translation>
    </message>
    <message id="1082">
        <source>Volume Settings</source>
        <translation>音量設定</translation>
    </message>
    <message id="1083">
        <source>Reset Audio Settings</source>
        <translation>オーディオ設定の初期化</translation>
    </message>
    <message id="1084">
        <source>Bluetooth Music</source>
        <translation>Bluetooth ミュージック</translation>
    </message>
    <message id="20001">
        <source>Audio Settings</source>
        <translation>オーディオ設定</translation>
    </message>
    <message id="20002">
        <source>Car</source>
        <translation>車両</translation>
    </message>
    <message id="20003">
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message id="20004">
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message id="20005">
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message id="20006">
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message id="20007">
        <source>Volume Settings</source>
        <translation>音量設定</translation>
    </message>
    <message id="20008">
        <source>Start Call</source>
        <translation>発信</translation>
    </message>
    <message id="20009">
        <source>End Call</source>
        <translation>通話終了</translation>
    </message>
    <message id="20010">
        <source>Call in progress</source>
        <translation>通話中</translation>
    </message>
    <message id="20011">
        <source>Main</source>
        <translation>メイン</translation>
    </message>
    <message id="20012">
        <source>Ringtone</source>
        <translation>着信音</translation>
    </message>
    <message id="20013">
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message id="20014">
        <source>Navigation</source>
        <translation>ナビ</translation>
    </message>
    <message id="20015">
        <source>Voice</source>
        <translation>音声</translation>
    </message>
    <message id="20016">
        <source>Traffic</source>
        <translation>交通情報</translation>
    </message>
    <message id="20031">
        <source>Voice</source>
        <translation>音声</translation>
    </message>
    <message id="20032">
        <source>Traffic</source>
        <translation>交通情報</translation>
    </message>
    <message id="20033">
        <source>Key Beep</source>
        <translation>操作音</translation>
    </message>
    <message id="20034">
        <source>Muted</source>
        <translation>消音中</translation>
    </message>
    <message id="20035">
        <source>No sound: no sound server answers</source>
        <translation>音が出ません：サウンドサーバーが応答しません</translation>
    </message>
    <message id="20036">
        <source>No sound: there is no sound device</source>
        <translation>音が出ません：音声デバイスがありません</translation>
    </message>
    <message id="20037">
        <source>No sound: the file cannot be played</source>
        <translation>音が出ません：ファイルを再生できません</translation>
    </message>
    <message id="20038">
        <source>No sound: the sound library is missing</source>
        <translation>音が出ません：サウンドライブラリがありません</translation>
    </message>
    <message id="20017">
        <source>DAB</source>
        <translation>DAB</translation>
    </message>
    <message id="20018">
        <source>Band Adjust</source>
        <translation>バンド調整</translation>
    </message>
    <message id="20019">
        <source>Tuner's desk</source>
        <translation>調整デスク</translation>
    </message>
    <message id="20039">
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message id="20040">
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message id="20041">
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message id="20042">
        <source>Mute</source>
        <translation>消音</translation>
    </message>
</context>
</TS>
