<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Audiosetting_right_general_widget</name>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>Subwoofer</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Sub. Vol.</source>
        <translation>Sub-Pegel</translation>
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
        <translation>Linear</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_eq_widget</name>
    <message>
        <source>Preset1</source>
        <translation>Preset 1</translation>
    </message>
    <message>
        <source>Preset2</source>
        <translation>Preset 2</translation>
    </message>
    <message>
        <source>Preset3</source>
        <translation>Preset 3</translation>
    </message>
    <message>
        <source>Preset4</source>
        <translation>Preset 4</translation>
    </message>
    <message>
        <source>Preset5</source>
        <translation>Preset 5</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_factoryeq_widget</name>
    <message>
        <source>Rock</source>
        <translation>Rock</translation>
    </message>
    <message>
        <source>Hip Hop</source>
        <translation>Hip-Hop</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>Pop</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Linear</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_crossover_widget</name>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_timing_widget</name>
    <message>
        <source>Front Left 1</source>
        <translation>Vorne links</translation>
    </message>
    <message>
        <source>Front Right 1</source>
        <translation>Vorne rechts</translation>
    </message>
    <message>
        <source>Rear Left</source>
        <translation>Hinten links</translation>
    </message>
    <message>
        <source>Rear Right</source>
        <translation>Hinten rechts</translation>
    </message>
    <message>
        <source>Subwoofer Left</source>
        <translation>Subwoofer links</translation>
    </message>
    <message>
        <source>Subwoofer Right</source>
        <translation>Subwoofer rechts</translation>
    </message>
    <message>
        <source>MSEC.</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Inches.</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
</context>
<context>
    <name>Audiovolumsettings</name>
    <message>
        <source>Main Volume</source>
        <translation>Hauptlautstärke</translation>
    </message>
    <message>
        <source>Phone Volume</source>
        <translation>Telefonlautstärke</translation>
    </message>
    <message>
        <source>Voice Volume</source>
        <translation>Assistentenlautstärke</translation>
    </message>
    <message>
        <source>Navigation Volume</source>
        <translation>Navigationslautstärke</translation>
    </message>
    <message>
        <source>Ringtone Volume</source>
        <translation>Klingeltonlautstärke</translation>
    </message>
    <message>
        <source>TA Volume</source>
        <translation>Verkehrsfunklautstärke</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Audiosettingsreset</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
