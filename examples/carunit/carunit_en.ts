<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Unit</name>
    <message>
        <source>3</source>
        <translation>Flat</translation>
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
        <translation>Classic</translation>
    </message>
    <message>
        <source>231</source>
        <translation>Subwoofer</translation>
    </message>
    <message>
        <source>232</source>
        <translation>Dynamic</translation>
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
        <translation>Hip Hop</translation>
    </message>
    <message>
        <source>241</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>262</source>
        <translation>Rear</translation>
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
        <translation>Custom</translation>
    </message>
    <message>
        <source>969</source>
        <translation>This will reset all of your audio settings.</translation>
    </message>
    <message>
        <source>970</source>
        <translation>Do you want to proceed?</translation>
    </message>
    <message>
        <source>971</source>
        <translation>Yes, Reset my Audio Settings</translation>
    </message>
    <message>
        <source>972</source>
        <translation>Alert</translation>
    </message>
    <message>
        <source>973</source>
        <translation>Reset Successful</translation>
    </message>
    <message>
        <source>1065</source>
        <translation>General</translation>
    </message>
    <message>
        <source>1066</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>1067</source>
        <translation>Factory EQ</translation>
    </message>
    <message>
        <source>1068</source>
        <translation>Crossover</translation>
    </message>
    <message>
        <source>1069</source>
        <translation>Timing</translation>
    </message>
    <message>
        <source>1070</source>
        <translation>Audio Settings</translation>
    </message>
    <message>
        <source>1071</source>
        <translation>Volume Settings</translation>
    </message>
    <message>
        <source>1072</source>
        <translation>Source Gain</translation>
    </message>
    <message>
        <source>1073</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>1074</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>1076</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>1077</source>
        <translation>Slope</translation>
    </message>
    <message>
        <source>1078</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>1079</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>1081</source>
        <translation>Source Gain</translation>
    </message>
    <message>
        <source>1082</source>
        <translation>Volume Settings</translation>
    </message>
    <message>
        <source>1083</source>
        <translation>Reset Audio Settings</translation>
    </message>
    <message>
        <source>1084</source>
        <translation>Bluetooth Music</translation>
    </message>
</context>
</TS>
