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
        <source>Calls between the applications and the unit</source>
        <translation>Ce qui se passe entre les applications et l’appareil</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>What is touched as a script, and reports of problems</source>
        <translation>Ce qui est touché, sous forme de script, et rapports de problèmes</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%1 touches, %2 s</source>
        <translation>%1 touches, %2 s</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Enregistrement en cours : %1</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Rien n’est encore enregistré</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Enregistrer le script</translation>
    </message>
    <message>
        <source>Script (*.js)</source>
        <translation>Script (*.js)</translation>
    </message>
    <message>
        <source>Saved in %1; headunit --script plays it</source>
        <translation>Enregistré dans %1 ; headunit --script le rejoue</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Curves of other programs</source>
        <translation>Courbes d’autres programmes</translation>
    </message>
    <message>
        <source>Filter lists in, responses and the curve out</source>
        <translation>Importe des listes de filtres, exporte réponses et courbe</translation>
    </message>
    <message>
        <source>"%1": %2 dB remain on average, %3 dB at most, at %4 Hz</source>
        <translation>« %1 » : il reste %2 dB en moyenne, %3 dB au plus, à %4 Hz</translation>
    </message>
    <message>
        <source>Import a filter list of Equalizer APO or REW to see what the bands make of it</source>
        <translation>Importez une liste de filtres d’Equalizer APO ou de REW pour voir ce qu’en font les bandes</translation>
    </message>
    <message>
        <source>Import a curve</source>
        <translation>Importer une courbe</translation>
    </message>
    <message>
        <source>Filter list (*.txt)</source>
        <translation>Liste de filtres (*.txt)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Export the curve for Equalizer APO</source>
        <translation>Exporter la courbe pour Equalizer APO</translation>
    </message>
    <message>
        <source>Export the responses of the outputs</source>
        <translation>Exporter les réponses des sorties</translation>
    </message>
    <message>
        <source>Response (*.frd)</source>
        <translation>Réponse (*.frd)</translation>
    </message>
    <message>
        <source>Response, REW (*.txt)</source>
        <translation>Réponse, REW (*.txt)</translation>
    </message>
    <message>
        <source>Shows what the bands make of a filter list; Apply puts it in force</source>
        <translation>Montre ce que les bandes font d’une liste de filtres ; Appliquer la met en vigueur</translation>
    </message>
    <message>
        <source>Makes the curve that is shown the custom curve</source>
        <translation>Fait de la courbe affichée la courbe personnelle</translation>
    </message>
    <message>
        <source>Export the curve…</source>
        <translation>Exporter la courbe…</translation>
    </message>
    <message>
        <source>Writes the equaliser in force as filters</source>
        <translation>Écrit l’égaliseur en vigueur sous forme de filtres</translation>
    </message>
    <message>
        <source>Export the responses…</source>
        <translation>Exporter les réponses…</translation>
    </message>
    <message>
        <source>Writes the response of each output and of their sum, a file each: Hz, dB, degrees</source>
        <translation>Écrit la réponse de chaque sortie et de leur somme, un fichier chacune : Hz, dB, degrés</translation>
    </message>
    <message>
        <source>Bands of the equaliser</source>
        <translation>Bandes de l’égaliseur</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Bande</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>Taken as</source>
        <translation>Pris comme</translation>
    </message>
    <message>
        <source>Left at the band</source>
        <translation>Reste à la bande</translation>
    </message>
    <message>
        <source>Tape measure</source>
        <translation>Mètre ruban</translation>
    </message>
    <message>
        <source>Distances of the loudspeakers become their delays</source>
        <translation>Les distances des haut-parleurs deviennent leurs retards</translation>
    </message>
    <message>
        <source>Measure from the listener's head to each loudspeaker</source>
        <translation>Mesurez de la tête de l’auditeur à chaque haut-parleur</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Avant gauche</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Avant droit</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Arrière gauche</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Arrière droit</translation>
    </message>
    <message>
        <source>Subwoofer left</source>
        <translation>Caisson gauche</translation>
    </message>
    <message>
        <source>Subwoofer right</source>
        <translation>Caisson droit</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Haut-parleur</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Exact delay</source>
        <translation>Retard exact</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Arrondi</translation>
    </message>
    <message>
        <source>A loudspeaker is too near for the rest: no delay is longer than %1 ms</source>
        <translation>Un haut-parleur est trop proche par rapport aux autres : aucun retard ne dépasse %1 ms</translation>
    </message>
    <message>
        <source>Sets the six delays, as one step</source>
        <translation>Règle les six retards en une étape</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Of the air in the car: sound is faster where it is warm</source>
        <translation>De l’air dans la voiture : le son va plus vite quand il fait chaud</translation>
    </message>
    <message>
        <source>%1 in centimetres</source>
        <translation>%1 en centimètres</translation>
    </message>
    <message>
        <source>%1 in inches</source>
        <translation>%1 en pouces</translation>
    </message>
    <message>
        <source>Report a problem…</source>
        <translation>Signaler un problème…</translation>
    </message>
    <message>
        <source>Archive (*.tar.gz)</source>
        <translation>Archive (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saved in %1; look into it before you send it</source>
        <translation>Enregistré dans %1 ; à relire avant l’envoi</translation>
    </message>
    <message>
        <source>Records what is touched as a script. The unit starts anew, at its home screen.</source>
        <translation>Enregistre ce qui est touché dans un script. L’appareil repart de son écran d’accueil.</translation>
    </message>
    <message>
        <source>Saves the recording as a script that headunit --script plays</source>
        <translation>Enregistre le script, que headunit --script rejoue</translation>
    </message>
    <message>
        <source>Packs set-up, recording, console and versions into one archive that does not name you</source>
        <translation>Réunit réglages, enregistrement, console et versions dans une archive qui ne vous nomme pas</translation>
    </message>
    <message>
        <source>Recording as a script</source>
        <translation>Enregistrement sous forme de script</translation>
    </message>
    <message>
        <source>A recording starts as the unit does: on the home screen, with what is set now.</source>
        <translation>Un enregistrement commence comme l’appareil : à l’écran d’accueil, avec les réglages actuels.</translation>
    </message>
    <message>
        <source>What went wrong, for the report</source>
        <translation>Ce qui n’a pas marché, pour le rapport</translation>
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
    <message>
        <source>Set-ups</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Keep, compare, undo: what is set, and what was</source>
        <translation>Garder, comparer, annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Takes the last change back (%1)</source>
        <translation>Annule le dernier changement (%1)</translation>
    </message>
    <message>
        <source>Reset: %1 settings</source>
        <translation>Réinitialisation : %1 valeurs</translation>
    </message>
    <message>
        <source>Crossover flat: %1 settings</source>
        <translation>Filtres à plat : %1 valeurs</translation>
    </message>
    <message>
        <source>Delays flat: %1 settings</source>
        <translation>Retards à zéro : %1 valeurs</translation>
    </message>
    <message>
        <source>%1: %2 settings</source>
        <translation>%1 : %2 valeurs</translation>
    </message>
    <message>
        <source>Changed while the desk was closed</source>
        <translation>Changé pendant que le poste était fermé</translation>
    </message>
    <message>
        <source>A/B</source>
        <translation>A/B</translation>
    </message>
    <message>
        <source>A is in force</source>
        <translation>A est en vigueur</translation>
    </message>
    <message>
        <source>B is in force</source>
        <translation>B est en vigueur</translation>
    </message>
    <message>
        <source>A is now a copy of B</source>
        <translation>A est maintenant une copie de B</translation>
    </message>
    <message>
        <source>B is now a copy of A</source>
        <translation>B est maintenant une copie de A</translation>
    </message>
    <message>
        <source>Choose or import a set-up to see what it would change</source>
        <translation>Choisissez ou importez un réglage pour voir ce qu’il changerait</translation>
    </message>
    <message>
        <source>"%1" changes %2 values</source>
        <translation>« %1 » change %2 valeurs</translation>
    </message>
    <message>
        <source>"%1" is in force</source>
        <translation>« %1 » est en vigueur</translation>
    </message>
    <message>
        <source>"%1" is deleted</source>
        <translation>« %1 » est supprimé</translation>
    </message>
    <message>
        <source>Keep the present set-up under a name</source>
        <translation>Garder le réglage actuel sous un nom</translation>
    </message>
    <message>
        <source>Export the present set-up</source>
        <translation>Exporter le réglage actuel</translation>
    </message>
    <message>
        <source>Import a set-up</source>
        <translation>Importer un réglage</translation>
    </message>
    <message>
        <source>Set-up (*.txt)</source>
        <translation>Réglage (*.txt)</translation>
    </message>
    <message>
        <source>Keep as…</source>
        <translation>Garder sous…</translation>
    </message>
    <message>
        <source>Keeps the present set-up under a name</source>
        <translation>Garde le réglage actuel sous un nom</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Puts the set-up that is shown in force</source>
        <translation>Met en vigueur le réglage affiché</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Deletes the chosen set-up</source>
        <translation>Supprime le réglage choisi</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Shows what a set-up file would change; Apply puts it in force</source>
        <translation>Montre ce qu’un fichier changerait ; Appliquer le met en vigueur</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Writes the present set-up into a file, for another unit</source>
        <translation>Écrit le réglage actuel dans un fichier, pour un autre appareil</translation>
    </message>
    <message>
        <source>Changes between two set-ups; what you change goes to the one in force</source>
        <translation>Passe d’un réglage à l’autre ; vos changements vont à celui en vigueur</translation>
    </message>
    <message>
        <source>Copy to the other</source>
        <translation>Copier sur l’autre</translation>
    </message>
    <message>
        <source>Makes the other one of A and B a copy of the one in force</source>
        <translation>Fait de l’autre de A et B une copie de celui en vigueur</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Every change; touch one to go back or forth to it</source>
        <translation>Chaque changement ; choisissez-en un pour y aller</translation>
    </message>
    <message>
        <source>Before all changes</source>
        <translation>Avant tout changement</translation>
    </message>
    <message>
        <source>Changes of the set-up</source>
        <translation>Ce que le réglage change</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>In the set-up</source>
        <translation>Dans le réglage</translation>
    </message>
    <message>
        <source>%1 dB to match</source>
        <translation>%1 dB pour égaliser</translation>
    </message>
    <message>
        <source>Match levels</source>
        <translation>Égaliser les niveaux</translation>
    </message>
    <message>
        <source>Makes the louder of A and B as quiet as the other, so that the ear compares the sound</source>
        <translation>Baisse le plus fort de A et B au niveau de l’autre, pour comparer le son</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>What the loudspeakers and their sum make of every frequency</source>
        <translation>Ce que les haut-parleurs et leur somme font de chaque fréquence</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Shows or hides this curve</source>
        <translation>Affiche ou masque cette courbe</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Shows the phase below the magnitude</source>
        <translation>Affiche la phase sous l’amplitude</translation>
    </message>
    <message>
        <source>Group delay</source>
        <translation>Temps de groupe</translation>
    </message>
    <message>
        <source>Shows the group delay below the magnitude</source>
        <translation>Affiche le temps de groupe sous l’amplitude</translation>
    </message>
    <message>
        <source>With delays</source>
        <translation>Avec retards</translation>
    </message>
    <message>
        <source>Off: as if the delays made up for the distances of the loudspeakers</source>
        <translation>Désactivé : comme si les retards compensaient les distances des haut-parleurs</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
    </message>
    <message>
        <source>Keeps the present curves beside the coming ones</source>
        <translation>Garde les courbes actuelles à côté des suivantes</translation>
    </message>
    <message>
        <source>Zoom back</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Shows the part that was shown before; a right click, too</source>
        <translation>Affiche la partie précédente ; un clic droit aussi</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Shows all frequencies</source>
        <translation>Affiche toutes les fréquences</translation>
    </message>
    <message>
        <source>Saves the diagrams as a picture, PNG or SVG</source>
        <translation>Enregistre les diagrammes en image, PNG ou SVG</translation>
    </message>
    <message>
        <source>Save the diagrams</source>
        <translation>Enregistrer les diagrammes</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Image (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dessin (*.svg)</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>Point at a curve to read its values; draw a frame to see more of it</source>
        <translation>Pointez une courbe pour lire ses valeurs ; tracez un cadre pour l’agrandir</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>(held %1)</source>
        <translation>(figé %1)</translation>
    </message>
    <message>
        <source>The main volume is 0: nothing is heard</source>
        <translation>Le volume principal est à 0 : on n’entend rien</translation>
    </message>
    <message>
        <source>Hole of %1 dB at %2 Hz</source>
        <translation>Creux de %1 dB à %2 Hz</translation>
    </message>
    <message>
        <source>Hole of more than %1 dB at %2 Hz</source>
        <translation>Creux de plus de %1 dB à %2 Hz</translation>
    </message>
    <message>
        <source>Overlap of %1 dB at %2 Hz</source>
        <translation>Recouvrement de %1 dB à %2 Hz</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>try phase %1° for the subwoofers</source>
        <translation>essayez la phase %1° pour les caissons de basses</translation>
    </message>
    <message>
        <source>try %1 Hz as the subwoofers' low-pass</source>
        <translation>essayez %1 Hz pour le passe-bas des caissons de basses</translation>
    </message>
    <message>
        <source>try %1 Hz as the front high-pass</source>
        <translation>essayez %1 Hz pour le passe-haut avant</translation>
    </message>
    <message>
        <source>try %1 Hz as the rear high-pass</source>
        <translation>essayez %1 Hz pour le passe-haut arrière</translation>
    </message>
    <message>
        <source>it comes of the delays, which differ</source>
        <translation>il vient des retards, qui diffèrent</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>How loud each loudspeaker is, and what its limiter takes away</source>
        <translation>Le niveau de chaque haut-parleur et ce que retire son limiteur</translation>
    </message>
    <message>
        <source>Limiter front</source>
        <translation>Limiteur avant</translation>
    </message>
    <message>
        <source>Limiter rear</source>
        <translation>Limiteur arrière</translation>
    </message>
    <message>
        <source>Limiter sub</source>
        <translation>Limiteur caisson</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>Rien ne joue</translation>
    </message>
    <message>
        <source>Nothing plays: no sound server answers</source>
        <translation>Rien ne joue : aucun serveur de son ne répond</translation>
    </message>
    <message>
        <source>Nothing plays: there is no sound device</source>
        <translation>Rien ne joue : il n’y a pas de périphérique audio</translation>
    </message>
    <message>
        <source>Nothing plays: the unit makes no sound here</source>
        <translation>Rien ne joue : l’appareil n’émet pas de son ici</translation>
    </message>
    <message>
        <source>Nothing plays: what was to be played cannot be read</source>
        <translation>Rien ne joue : ce qui devait être joué est illisible</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>%1 Hz, %2</source>
        <translation>%1 Hz, %2</translation>
    </message>
    <message>
        <source>+%1 dB at %2: turn down by %1 dB or expect the limiter</source>
        <translation>+%1 dB à %2 : baissez de %1 dB ou attendez-vous au limiteur</translation>
    </message>
    <message>
        <source>Headroom of %1 dB; least of it at %2</source>
        <translation>Réserve de %1 dB ; la plus faible à %2</translation>
    </message>
    <message>
        <source>Forgets the highest values and the clips</source>
        <translation>Oublie les maximums et les saturations</translation>
    </message>
    <message>
        <source>What the limiter takes away, in dB</source>
        <translation>Ce que retire le limiteur, en dB</translation>
    </message>
    <message>
        <source>Peak of the samples, held for 1.5 s, falling by 20 dB in 1.7 s (IEC 60268-18); within it the mean of 300 ms</source>
        <translation>Crête des échantillons, tenue 1,5 s, retombe de 20 dB en 1,7 s (CEI 60268-18) ; à l’intérieur la moyenne sur 300 ms</translation>
    </message>
    <message>
        <source>The most that the limiter took away since the reset, in dB</source>
        <translation>Le maximum retiré par le limiteur depuis la réinitialisation, en dB</translation>
    </message>
    <message>
        <source>Highest sample since the reset, in dB of full scale</source>
        <translation>Échantillon maximal depuis la réinitialisation, en dB pleine échelle</translation>
    </message>
    <message>
        <source>Mean of 300 ms in dB; a sine of full scale reads 0 dB (AES17)</source>
        <translation>Moyenne sur 300 ms en dB ; un sinus pleine échelle indique 0 dB (AES17)</translation>
    </message>
    <message>
        <source>How often the sound went beyond full scale since the reset, and the limiter caught it</source>
        <translation>Combien de fois le son a dépassé la pleine échelle depuis la réinitialisation et le limiteur l’a retenu</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Saturations</translation>
    </message>
    <message>
        <source>For a tone of full scale at the frequency that the settings raise most</source>
        <translation>Pour un son pleine échelle à la fréquence que les réglages relèvent le plus</translation>
    </message>
</context>
</TS>
