<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="3">
        <source>Flat</source>
        <translation>Neutre</translation>
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
        <translation>Classique</translation>
    </message>
    <message id="231">
        <source>Subwoofer</source>
        <translation>Caisson</translation>
    </message>
    <message id="232">
        <source>Dynamic</source>
        <translation>Dynamique</translation>
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
        <translation>Hip-hop</translation>
    </message>
    <message id="241">
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message id="262">
        <source>Rear</source>
        <translation>Arrière</translation>
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
        <translation>Personnalisé</translation>
    </message>
    <message id="969">
        <source>This will reset all of your audio settings.</source>
        <translation>Réinitialise tous les réglages audio.</translation>
    </message>
    <message id="970">
        <source>Do you want to proceed?</source>
        <translation>Voulez-vous continuer ?</translation>
    </message>
    <message id="971">
        <source>Yes, Reset my Audio Settings</source>
        <translation>Oui, réinitialiser les réglages</translation>
    </message>
    <message id="972">
        <source>Alert</source>
        <translation>Attention</translation>
    </message>
    <message id="973">
        <source>Reset Successful</source>
        <translation>Réinitialisation réussie</translation>
    </message>
    <message id="1065">
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message id="1066">
        <source>Equalizer</source>
        <translation>Égaliseur</translation>
    </message>
    <message id="1067">
        <source>Factory EQ</source>
        <translation>EQ prédéfinis</translation>
    </message>
    <message id="1068">
        <source>Crossover</source>
        <translation>Filtre répartiteur</translation>
    </message>
    <message id="1069">
        <source>Timing</source>
        <translation>Alignement temporel</translation>
    </message>
    <message id="1070">
        <source>Audio Settings</source>
        <translation>Réglages audio</translation>
    </message>
    <message id="1071">
        <source>Volume Settings</source>
        <translation>Réglages du volume</translation>
    </message>
    <message id="1072">
        <source>Source Gain</source>
        <translation>Gain des sources</translation>
    </message>
    <message id="1073">
        <source>Flat</source>
        <translation>Neutre</translation>
    </message>
    <message id="1074">
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
    <message id="1076">
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message id="1077">
        <source>Slope</source>
        <translation>Pente</translation>
    </message>
    <message id="1078">
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message id="1079">
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message id="1081">
        <source>Source Gain</source>
        <translation>Gain des sources</translation>
    </message>
    <message id="1082">
        <source>Volume Settings</source>
        <translation>Réglages du volume</translation>
    </message>
    <message id="1083">
        <source>Reset Audio Settings</source>
        <translation>Réinitialiser l’audio</translation>
    </message>
    <message id="1084">
        <source>Bluetooth Music</source>
        <translation>Musique Bluetooth</translation>
    </message>
    <message id="20001">
        <source>Audio Settings</source>
        <translation>Réglages audio</translation>
    </message>
    <message id="20002">
        <source>Car</source>
        <translation>Véhicule</translation>
    </message>
    <message id="20003">
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message id="20004">
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message id="20005">
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message id="20006">
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message id="20007">
        <source>Volume Settings</source>
        <translation>Réglages du volume</translation>
    </message>
    <message id="20008">
        <source>Start Call</source>
        <translation>Lancer un appel</translation>
    </message>
    <message id="20009">
        <source>End Call</source>
        <translation>Terminer l’appel</translation>
    </message>
    <message id="20010">
        <source>Call in progress</source>
        <translation>Appel en cours</translation>
    </message>
    <message id="20011">
        <source>Main</source>
        <translation>Principal</translation>
    </message>
    <message id="20012">
        <source>Ringtone</source>
        <translation>Sonnerie</translation>
    </message>
    <message id="20013">
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message id="20014">
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message id="20015">
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message id="20016">
        <source>Traffic</source>
        <translation>Info trafic</translation>
    </message>
    <message id="20031">
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message id="20032">
        <source>Traffic</source>
        <translation>Info trafic</translation>
    </message>
    <message id="20033">
        <source>Key Beep</source>
        <translation>Bip</translation>
    </message>
    <message id="20034">
        <source>Muted</source>
        <translation>Son coupé</translation>
    </message>
    <message id="20035">
        <source>No sound: no sound server answers</source>
        <translation>Pas de son : aucun serveur de son ne répond</translation>
    </message>
    <message id="20036">
        <source>No sound: there is no sound device</source>
        <translation>Pas de son : aucun périphérique audio</translation>
    </message>
    <message id="20037">
        <source>No sound: the file cannot be played</source>
        <translation>Pas de son : le fichier ne peut pas être lu</translation>
    </message>
    <message id="20038">
        <source>No sound: the sound library is missing</source>
        <translation>Pas de son : la bibliothèque audio est absente</translation>
    </message>
    <message id="20017">
        <source>DAB</source>
        <translation>DAB</translation>
    </message>
    <message id="20018">
        <source>Band Adjust</source>
        <translation>Bandes</translation>
    </message>
    <message id="20019">
        <source>Tuner's desk</source>
        <translation>Poste de réglage</translation>
    </message>
    <message id="20039">
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message id="20040">
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message id="20041">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="20042">
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
</context>
</TS>
