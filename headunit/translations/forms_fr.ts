<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Audiosetting_right_general_widget</name>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>Caisson</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Sub. Vol.</source>
        <translation>Vol. caisson</translation>
    </message>
    <message>
        <source>BAL:</source>
        <translation>BAL :</translation>
    </message>
    <message>
        <source>FAD:</source>
        <translation>FAD :</translation>
    </message>
</context>
<context>
    <name>AudiosettingsTop</name>
    <message>
        <source>Flat</source>
        <translation>Neutre</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_eq_widget</name>
    <message>
        <source>Preset1</source>
        <translation>Perso 1</translation>
    </message>
    <message>
        <source>Preset2</source>
        <translation>Perso 2</translation>
    </message>
    <message>
        <source>Preset3</source>
        <translation>Perso 3</translation>
    </message>
    <message>
        <source>Preset4</source>
        <translation>Perso 4</translation>
    </message>
    <message>
        <source>Preset5</source>
        <translation>Perso 5</translation>
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
        <translation>Hip-hop</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>Électro</translation>
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
        <translation>Neutre</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_crossover_widget</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
</context>
<context>
    <name>Audiosetting_right_timing_widget</name>
    <message>
        <source>Front Left 1</source>
        <translation>Avant gauche</translation>
    </message>
    <message>
        <source>Front Right 1</source>
        <translation>Avant droit</translation>
    </message>
    <message>
        <source>Rear Left</source>
        <translation>Arrière gauche</translation>
    </message>
    <message>
        <source>Rear Right</source>
        <translation>Arrière droit</translation>
    </message>
    <message>
        <source>Subwoofer Left</source>
        <translation>Caisson gauche</translation>
    </message>
    <message>
        <source>Subwoofer Right</source>
        <translation>Caisson droit</translation>
    </message>
    <message>
        <source>MSEC.</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Inches.</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
</context>
<context>
    <name>Audiovolumsettings</name>
    <message>
        <source>Main Volume</source>
        <translation>Volume principal</translation>
    </message>
    <message>
        <source>Phone Volume</source>
        <translation>Volume du téléphone</translation>
    </message>
    <message>
        <source>Voice Volume</source>
        <translation>Volume de la voix</translation>
    </message>
    <message>
        <source>Navigation Volume</source>
        <translation>Volume de la navigation</translation>
    </message>
    <message>
        <source>Ringtone Volume</source>
        <translation>Volume de la sonnerie</translation>
    </message>
    <message>
        <source>TA Volume</source>
        <translation>Volume des infos trafic</translation>
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
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>Audiosettingsreset</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
