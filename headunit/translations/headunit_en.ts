<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="3">
        <source>Flat</source>
        <translation>Flat</translation>
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
        <translation>Classic</translation>
    </message>
    <message id="231">
        <source>Subwoofer</source>
        <translation>Subwoofer</translation>
    </message>
    <message id="232">
        <source>Dynamic</source>
        <translation>Dynamic</translation>
    </message>
    <message id="233">
        <source>Pop</source>
        <translation>Pop</translation>
    </message>
    <message id="234">
        <source>Rock</source>
        <translation>Rock</translation>
    </message>
    <message id="235">
        <source>Hip Hop</source>
        <translation>Hip Hop</translation>
    </message>
    <message id="241">
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message id="262">
        <source>Rear</source>
        <translation>Rear</translation>
    </message>
    <message id="361">
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message id="427">
        <source>SiriusXM</source>
        <translation>SiriusXM</translation>
    </message>
    <message id="439">
        <source>Loudness</source>
        <translation>Loudness</translation>
    </message>
    <message id="681">
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message id="969">
        <source>This will reset all of your audio settings.</source>
        <translation>This will reset all of your audio settings.</translation>
    </message>
    <message id="970">
        <source>Do you want to proceed?</source>
        <translation>Do you want to proceed?</translation>
    </message>
    <message id="971">
        <source>Yes, Reset my Audio Settings</source>
        <translation>Yes, Reset my Audio Settings</translation>
    </message>
    <message id="972">
        <source>Alert</source>
        <translation>Alert</translation>
    </message>
    <message id="973">
        <source>Reset Successful</source>
        <translation>Reset Successful</translation>
    </message>
    <message id="1065">
        <source>General</source>
        <translation>General</translation>
    </message>
    <message id="1066">
        <source>Equalizer</source>
        <translation>Equalizer</translation>
    </message>
    <message id="1067">
        <source>Factory EQ</source>
        <translation>Factory EQ</translation>
    </message>
    <message id="1068">
        <source>Crossover</source>
        <translation>Crossover</translation>
    </message>
    <message id="1069">
        <source>Timing</source>
        <translation>Timing</translation>
    </message>
    <message id="1070">
        <source>Audio Settings</source>
        <translation>Audio Settings</translation>
    </message>
    <message id="1071">
        <source>Volume Settings</source>
        <translation>Volume Settings</translation>
    </message>
    <message id="1072">
        <source>Source Gain</source>
        <translation>Source Gain</translation>
    </message>
    <message id="1073">
        <source>Flat</source>
        <translation>Flat</translation>
    </message>
    <message id="1074">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="1076">
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message id="1077">
        <source>Slope</source>
        <translation>Slope</translation>
    </message>
    <message id="1078">
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message id="1079">
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message id="1081">
        <source>Source Gain</source>
        <translation>Source Gain</translation>
    </message>
    <message id="1082">
        <source>Volume Settings</source>
        <translation>Volume Settings</translation>
    </message>
    <message id="1083">
        <source>Reset Audio Settings</source>
        <translation>Reset Audio Settings</translation>
    </message>
    <message id="1084">
        <source>Bluetooth Music</source>
        <translation>Bluetooth Music</translation>
    </message>
    <message id="20001">
        <source>Audio Settings</source>
        <translation>Audio Settings</translation>
    </message>
    <message id="20002">
        <source>Car</source>
        <translation>Car</translation>
    </message>
    <message id="20003">
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message id="20004">
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message id="20005">
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message id="20006">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="20007">
        <source>Volume Settings</source>
        <translation>Volume Settings</translation>
    </message>
    <message id="20008">
        <source>Start Call</source>
        <translation>Start Call</translation>
    </message>
    <message id="20009">
        <source>End Call</source>
        <translation>End Call</translation>
    </message>
    <message id="20010">
        <source>Call in progress</source>
        <translation>Call in progress</translation>
    </message>
    <message id="20011">
        <source>Main</source>
        <translation>Main</translation>
    </message>
    <message id="20012">
        <source>Ringtone</source>
        <translation>Ringtone</translation>
    </message>
    <message id="20013">
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message id="20014">
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message id="20015">
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message id="20016">
        <source>Traffic</source>
        <translation>Traffic</translation>
    </message>
    <message id="20031">
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message id="20032">
        <source>Traffic</source>
        <translation>Traffic</translation>
    </message>
    <message id="20033">
        <source>Key Beep</source>
        <translation>Key Beep</translation>
    </message>
    <message id="20034">
        <source>Muted</source>
        <translation>Muted</translation>
    </message>
    <message id="20035">
        <source>No sound: no sound server answers</source>
        <translation>No sound: no sound server answers</translation>
    </message>
    <message id="20036">
        <source>No sound: there is no sound device</source>
        <translation>No sound: there is no sound device</translation>
    </message>
    <message id="20037">
        <source>No sound: the file cannot be played</source>
        <translation>No sound: the file cannot be played</translation>
    </message>
    <message id="20038">
        <source>No sound: the sound library is missing</source>
        <translation>No sound: the sound library is missing</translation>
    </message>
    <message id="20017">
        <source>DAB</source>
        <translation>DAB</translation>
    </message>
    <message id="20018">
        <source>Band Adjust</source>
        <translation>Band Adjust</translation>
    </message>
    <message id="20019">
        <source>Tuner's desk</source>
        <translation>Tuner's desk</translation>
    </message>
    <message id="20039">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="20040">
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message id="20041">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="20042">
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
</context>
</TS>
