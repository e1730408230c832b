<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Unit</name>
    <message>
        <source>3</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>14</source>
        <translation>Apple CarPlay</translation>
    </message>
    <message>
        <source>15</source>
        <translation>Android Auto</translation>
    </message>
    <message>
        <source>16</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>229</source>
        <translation>Klassik</translation>
    </message>
    <message>
        <source>231</source>
        <translation>Subwoofer</translation>
    </message>
    <message>
        <source>232</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>233</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>234</source>
        <translation>Rock</translation>
    </message>
    <message>
        <source>235</source>
        <translation>Hip-Hop</translation>
    </message>
    <message>
        <source>241</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>262</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>361</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>427</source>
        <translation>SiriusXM</translation>
    </message>
    <message>
        <source>439</source>
        <translation>Loudness</translation>
    </message>
    <message>
        <source>681</source>
        <translation>Individuell</translation>
    </message>
    <message>
        <source>969</source>
        <translation>Alle Audioeinstellungen gehen verloren.</translation>
    </message>
    <message>
        <source>970</source>
        <translation>Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>971</source>
        <translation>Ja, Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>972</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>973</source>
        <translation>Erfolgreich zurückgesetzt</translation>
    </message>
    <message>
        <source>1065</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>1066</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>1067</source>
        <translation>Werks-EQ</translation>
    </message>
    <message>
        <source>1068</source>
        <translation>Frequenzweiche</translation>
    </message>
    <message>
        <source>1069</source>
        <translation>Laufzeitkorrektur</translation>
    </message>
    <message>
        <source>1070</source>
        <translation>Audioeinstellungen</translation>
    </message>
    <message>
        <source>1071</source>
        <translation>Lautstärken</translation>
    </message>
    <message>
        <source>1072</source>
        <translation>Quellenpegel</translation>
    </message>
    <message>
        <source>1073</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>1074</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>1076</source>
        <translation>Vorne</translation>
    </message>
    <message>
        <source>1077</source>
        <translation>Flankensteilheit</translation>
    </message>
    <message>
        <source>1078</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>1079</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>1081</source>
        <translation>Quellenpegel</translation>
    </message>
    <message>
        <source>1082</source>
        <translation>Lautstärken</translation>
    </message>
    <message>
        <source>1083</source>
        <translation>Audio zurücksetzen</translation>
    </message>
    <message>
        <source>1084</source>
        <translation>Bluetooth-Musik</translation>
    </message>
</context>
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
        <translation>Sprachlautstärke</translation>
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
