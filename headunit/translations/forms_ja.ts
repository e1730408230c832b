<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Audiosetting_right_general_widget</name>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>バイパス</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>サブウーファー</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>位相</translation>
    </message>
    <message>
        <source>Sub. Vol.</source>
        <translation>サブ音量</translation>
    </message>
    <message>
        <source>BAL:</source>
        <translation>BAL:</translation>
    </message>
    <message>
        <source>FAD:</source>
        <translation>FAD:</translation>
    </message>
</context>
<context>
    <name>AudiosettingsTop</name>
    <message>
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_eq_widget</name>
    <message>
        <source>Preset1</source>
        <translation>ユーザー1</translation>
    </message>
    <message>
        <source>Preset2</source>
        <translation>ユーザー2</translation>
    </message>
    <message>
        <source>Preset3</source>
        <translation>ユーザー3</translation>
    </message>
    <message>
        <source>Preset4</source>
        <translation>ユーザー4</translation>
    </message>
    <message>
        <source>Preset5</source>
        <translation>ユーザー5</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_factoryeq_widget</name>
    <message>
        <source>Rock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Hip Hop</source>
        <translation>ヒップホップ</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>エレクトロ</translation>
    </message>
    <message>
        <source>Jazz</source>
        <translation>ジャズ</translation>
    </message>
    <message>
        <source>Pop</source>
        <translation>ポップ</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_crossover_widget</name>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_timing_widget</name>
    <message>
        <source>Front Left 1</source>
        <translation>フロント左</translation>
    </message>
    <message>
        <source>Front Right 1</source>
        <translation>フロント右</translation>
    </message>
    <message>
        <source>Rear Left</source>
        <translation>リア左</translation>
    </message>
    <message>
        <source>Rear Right</source>
        <translation>リア右</translation>
    </message>
    <message>
        <source>Subwoofer Left</source>
        <translation>サブウーファー左</translation>
    </message>
    <message>
        <source>Subwoofer Right</source>
        <translation>サブウーファー右</translation>
    </message>
    <message>
        <source>MSEC.</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Inches.</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
</context>
<context>
    <name>Audiovolumsettings</name>
    <message>
        <source>Main Volume</source>
        <translation>メイン音量</translation>
    </message>
    <message>
        <source>Phone Volume</source>
        <translation>電話音量</translation>
    </message>
    <message>
        <source>Voice Volume</source>
        <translation>音声音量</translation>
    </message>
    <message>
        <source>Navigation Volume</source>
        <translation>ナビ音量</translation>
    </message>
    <message>
        <source>Ringtone Volume</source>
        <translation>着信音量</translation>
    </message>
    <message>
        <source>TA Volume</source>
        <translation>交通情報音量</translation>
    </message>
</context>
<context>
    <name>eq_adjust_fragment</name>
    <message>
        <source>EQ</source>
        <translation>EQ</translation>
    </message>
    <message>
        <source>32Hz</source>
        <translation>32 Hz</translation>
    </message>
    <message>
        <source>63Hz</source>
        <translation>63 Hz</translation>
    </message>
    <message>
        <source>125Hz</source>
        <translation>125 Hz</translation>
    </message>
    <message>
        <source>250Hz</source>
        <translation>250 Hz</translation>
    </message>
    <message>
        <source>500Hz</source>
        <translation>500 Hz</translation>
    </message>
    <message>
        <source>1KHz</source>
        <translation>1 kHz</translation>
    </message>
    <message>
        <source>2KHz</source>
        <translation>2 kHz</translation>
    </message>
    <message>
        <source>4KHz</source>
        <translation>4 kHz</translation>
    </message>
    <message>
        <source>8KHz</source>
        <translation>8 kHz</translation>
    </message>
    <message>
        <source>16KHz</source>
        <translation>16 kHz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>Audiosettingsreset</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
