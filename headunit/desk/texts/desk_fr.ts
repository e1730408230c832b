<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>desk</name>
    <message>
        <source>Tuner's desk</source>
        <translation>Poste de réglage</translation>
    </message>
    <message>
        <source>&amp;Desk</source>
        <translation>&amp;Poste</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenêtres</translation>
    </message>
    <message>
        <source>&amp;Close the desk</source>
        <translation>&amp;Fermer le poste</translation>
    </message>
    <message>
        <source>Service console</source>
        <translation>Console des services</translation>
    </message>
    <message>
        <source>What happens between the applications and the unit</source>
        <translation>Ce qui se passe entre les applications et l’appareil</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialisation</translation>
    </message>
    <message>
        <source>Top bar</source>
        <translation>Barre supérieure</translation>
    </message>
    <message>
        <source>Tab bar</source>
        <translation>Barre d’onglets</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Écran d’accueil</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barre d’état</translation>
    </message>
    <message>
        <source>Hard keys</source>
        <translation>Touches physiques</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Toucher</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Announcement</source>
        <translation>Annonce</translation>
    </message>
    <message>
        <source>Posted touch</source>
        <translation>Geste envoyé</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Log line</source>
        <translation>Ligne du journal</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Signification</translation>
    </message>
    <message>
        <source>finger down on %1</source>
        <translation>doigt posé sur %1</translation>
    </message>
    <message>
        <source>finger up on %1</source>
        <translation>doigt levé de %1</translation>
    </message>
    <message>
        <source>key of the keyboard</source>
        <translation>touche du clavier</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
    <message>
        <source>paused, %1 more</source>
        <translation>en pause, %1 de plus</translation>
    </message>
    <message>
        <source>Every page</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Save the rows shown</source>
        <translation>Enregistrer les lignes affichées</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>Lignes JSON (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>Words that stand in the row</source>
        <translation>Mots présents dans la ligne</translation>
    </message>
    <message>
        <source>Filter by words</source>
        <translation>Filtrer par mots</translation>
    </message>
    <message>
        <source>Shows the rows in which all of these words stand, in call, meaning or page</source>
        <translation>Affiche les lignes qui contiennent tous ces mots, dans l’appel, la signification ou la page</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Classes</translation>
    </message>
    <message>
        <source>Which classes of rows are shown. Reads are recorded only while they are.</source>
        <translation>Classes de lignes affichées. Les lectures ne sont enregistrées que si elles sont affichées.</translation>
    </message>
    <message>
        <source>Filter by page</source>
        <translation>Filtrer par page</translation>
    </message>
    <message>
        <source>Shows what this page of the unit caused</source>
        <translation>Affiche ce que cette page de l’appareil a provoqué</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Holds the rows still; what comes meanwhile is shown afterwards</source>
        <translation>Fige les lignes ; ce qui arrive entre-temps est affiché ensuite</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Keeps the newest row in sight</source>
        <translation>Garde la dernière ligne visible</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Forgets all rows</source>
        <translation>Oublie toutes les lignes</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation>Copie les lignes sélectionnées en texte</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Saves the rows shown as text or as JSON lines</source>
        <translation>Enregistre les lignes affichées en texte ou en lignes JSON</translation>
    </message>
    <message>
        <source>Rows of the service console</source>
        <translation>Lignes de la console des services</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Enregistrement de %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
</context>
</TS>
