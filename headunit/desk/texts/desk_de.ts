<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>desk</name>
    <message>
        <source>Tuner's desk</source>
        <translation>Abstimmplatz</translation>
    </message>
    <message>
        <source>&amp;Desk</source>
        <translation>&amp;Platz</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Close the desk</source>
        <translation>Abstimmplatz s&amp;chließen</translation>
    </message>
    <message>
        <source>Service console</source>
        <translation>Dienstkonsole</translation>
    </message>
    <message>
        <source>Calls between the applications and the unit</source>
        <translation>Was zwischen den Anwendungen und dem Gerät geschieht</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>What is touched as a script, and reports of problems</source>
        <translation>Was berührt wird, als Skript, und Problemberichte</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>%1 touches, %2 s</source>
        <translation>%1 Berührungen, %2 s</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Zeichnet auf: %1</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Noch nichts aufgezeichnet</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Aufzeichnung speichern</translation>
    </message>
    <message>
        <source>Script (*.js)</source>
        <translation>Skript (*.js)</translation>
    </message>
    <message>
        <source>Saved in %1; headunit --script plays it</source>
        <translation>Gespeichert in %1; headunit --script spielt es ab</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>Curves of other programs</source>
        <translation>Kurven anderer Programme</translation>
    </message>
    <message>
        <source>Filter lists in, responses and the curve out</source>
        <translation>Filterlisten herein, Frequenzgänge und die Kurve hinaus</translation>
    </message>
    <message>
        <source>"%1": %2 dB remain on average, %3 dB at most, at %4 Hz</source>
        <translation>„%1“: im Mittel bleiben %2 dB, höchstens %3 dB, bei %4 Hz</translation>
    </message>
    <message>
        <source>Import a filter list of Equalizer APO or REW to see what the bands make of it</source>
        <translation>Filterliste von Equalizer APO oder REW importieren, um zu sehen, was die Bänder daraus machen</translation>
    </message>
    <message>
        <source>Import a curve</source>
        <translation>Kurve importieren</translation>
    </message>
    <message>
        <source>Filter list (*.txt)</source>
        <translation>Filterliste (*.txt)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Export the curve for Equalizer APO</source>
        <translation>Kurve für Equalizer APO exportieren</translation>
    </message>
    <message>
        <source>Export the responses of the outputs</source>
        <translation>Frequenzgänge der Ausgänge exportieren</translation>
    </message>
    <message>
        <source>Response (*.frd)</source>
        <translation>Frequenzgang (*.frd)</translation>
    </message>
    <message>
        <source>Response, REW (*.txt)</source>
        <translation>Frequenzgang, REW (*.txt)</translation>
    </message>
    <message>
        <source>Shows what the bands make of a filter list; Apply puts it in force</source>
        <translation>Zeigt, was die Bänder aus einer Filterliste machen; Anwenden setzt es in Kraft</translation>
    </message>
    <message>
        <source>Makes the curve that is shown the custom curve</source>
        <translation>Macht die gezeigte Kurve zur eigenen Kurve</translation>
    </message>
    <message>
        <source>Export the curve…</source>
        <translation>Kurve exportieren…</translation>
    </message>
    <message>
        <source>Writes the equaliser in force as filters</source>
        <translation>Schreibt den Equalizer, wie er ist, als Filter</translation>
    </message>
    <message>
        <source>Export the responses…</source>
        <translation>Frequenzgänge exportieren…</translation>
    </message>
    <message>
        <source>Writes the response of each output and of their sum, a file each: Hz, dB, degrees</source>
        <translation>Schreibt den Frequenzgang jedes Ausgangs und der Summe, je eine Datei: Hz, dB, Grad</translation>
    </message>
    <message>
        <source>Bands of the equaliser</source>
        <translation>Bänder des Equalizers</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Taken as</source>
        <translation>Genommen als</translation>
    </message>
    <message>
        <source>Left at the band</source>
        <translation>Bleibt am Band</translation>
    </message>
    <message>
        <source>Tape measure</source>
        <translation>Maßband</translation>
    </message>
    <message>
        <source>Distances of the loudspeakers become their delays</source>
        <translation>Aus den Abständen der Lautsprecher werden ihre Verzögerungen</translation>
    </message>
    <message>
        <source>Measure from the listener's head to each loudspeaker</source>
        <translation>Vom Kopf des Hörers zu jedem Lautsprecher messen</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Vorn links</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Vorn rechts</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Hinten links</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Hinten rechts</translation>
    </message>
    <message>
        <source>Subwoofer left</source>
        <translation>Subwoofer links</translation>
    </message>
    <message>
        <source>Subwoofer right</source>
        <translation>Subwoofer rechts</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Exact delay</source>
        <translation>Genaue Verzögerung</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>A loudspeaker is too near for the rest: no delay is longer than %1 ms</source>
        <translation>Ein Lautsprecher ist den anderen zu weit voraus: keine Verzögerung ist länger als %1 ms</translation>
    </message>
    <message>
        <source>Sets the six delays, as one step</source>
        <translation>Stellt die sechs Verzögerungen ein, als ein Schritt</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Of the air in the car: sound is faster where it is warm</source>
        <translation>Der Luft im Auto: Schall ist schneller, wo es warm ist</translation>
    </message>
    <message>
        <source>%1 in centimetres</source>
        <translation>%1 in Zentimetern</translation>
    </message>
    <message>
        <source>%1 in inches</source>
        <translation>%1 in Zoll</translation>
    </message>
    <message>
        <source>Report a problem…</source>
        <translation>Problem melden…</translation>
    </message>
    <message>
        <source>Archive (*.tar.gz)</source>
        <translation>Archiv (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saved in %1; look into it before you send it</source>
        <translation>Gespeichert in %1; vor dem Versenden hineinsehen</translation>
    </message>
    <message>
        <source>Records what is touched as a script. The unit starts anew, at its home screen.</source>
        <translation>Zeichnet auf, was berührt wird, als Skript. Das Gerät beginnt neu, mit dem Startbildschirm.</translation>
    </message>
    <message>
        <source>Saves the recording as a script that headunit --script plays</source>
        <translation>Speichert die Aufzeichnung als Skript, das headunit --script abspielt</translation>
    </message>
    <message>
        <source>Packs set-up, recording, console and versions into one archive that does not name you</source>
        <translation>Packt Einstellung, Aufzeichnung, Konsole und Versionen in ein Archiv, das Sie nicht nennt</translation>
    </message>
    <message>
        <source>Recording as a script</source>
        <translation>Aufzeichnung als Skript</translation>
    </message>
    <message>
        <source>A recording starts as the unit does: on the home screen, with what is set now.</source>
        <translation>Eine Aufzeichnung beginnt wie das Gerät: auf dem Startbildschirm, mit dem, was jetzt eingestellt ist.</translation>
    </message>
    <message>
        <source>What went wrong, for the report</source>
        <translation>Was schiefging, für den Bericht</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Top bar</source>
        <translation>Kopfleiste</translation>
    </message>
    <message>
        <source>Tab bar</source>
        <translation>Registerleiste</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Startbildschirm</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Hard keys</source>
        <translation>Tasten am Gerät</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Berührung</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Announcement</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Posted touch</source>
        <translation>Gesendete Geste</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Log line</source>
        <translation>Protokollzeile</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>finger down on %1</source>
        <translation>Finger ab auf %1</translation>
    </message>
    <message>
        <source>finger up on %1</source>
        <translation>Finger auf von %1</translation>
    </message>
    <message>
        <source>key of the keyboard</source>
        <translation>Taste der Tastatur</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>paused, %1 more</source>
        <translation>angehalten, %1 weitere</translation>
    </message>
    <message>
        <source>Every page</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Save the rows shown</source>
        <translation>Gezeigte Zeilen sichern</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON-Zeilen (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Gesichert in %1</translation>
    </message>
    <message>
        <source>Words that stand in the row</source>
        <translation>Wörter, die in der Zeile stehen</translation>
    </message>
    <message>
        <source>Filter by words</source>
        <translation>Nach Wörtern filtern</translation>
    </message>
    <message>
        <source>Shows the rows in which all of these words stand, in call, meaning or page</source>
        <translation>Zeigt die Zeilen, in denen alle diese Wörter stehen, in Aufruf, Bedeutung oder Seite</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Arten</translation>
    </message>
    <message>
        <source>Which classes of rows are shown. Reads are recorded only while they are.</source>
        <translation>Welche Arten von Zeilen gezeigt werden. Lesen wird nur aufgezeichnet, solange es gezeigt wird.</translation>
    </message>
    <message>
        <source>Filter by page</source>
        <translation>Nach Seite filtern</translation>
    </message>
    <message>
        <source>Shows what this page of the unit caused</source>
        <translation>Zeigt, was diese Seite des Geräts bewirkt hat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Holds the rows still; what comes meanwhile is shown afterwards</source>
        <translation>Hält die Zeilen an; was inzwischen kommt, wird danach gezeigt</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Keeps the newest row in sight</source>
        <translation>Hält die neueste Zeile im Blick</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Forgets all rows</source>
        <translation>Vergisst alle Zeilen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation>Kopiert die gewählten Zeilen als Text</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Sichern …</translation>
    </message>
    <message>
        <source>Saves the rows shown as text or as JSON lines</source>
        <translation>Sichert die gezeigten Zeilen als Text oder als JSON-Zeilen</translation>
    </message>
    <message>
        <source>Rows of the service console</source>
        <translation>Zeilen der Dienstkonsole</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gesichert</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Keep, compare, undo: what is set, and what was</source>
        <translation>Merken, vergleichen, rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back (%1)</source>
        <translation>Nimmt die letzte Änderung zurück (%1)</translation>
    </message>
    <message>
        <source>Reset: %1 settings</source>
        <translation>Zurückgesetzt: %1 Werte</translation>
    </message>
    <message>
        <source>Crossover flat: %1 settings</source>
        <translation>Frequenzweiche linear: %1 Werte</translation>
    </message>
    <message>
        <source>Delays flat: %1 settings</source>
        <translation>Laufzeiten auf null: %1 Werte</translation>
    </message>
    <message>
        <source>%1: %2 settings</source>
        <translation>%1: %2 Werte</translation>
    </message>
    <message>
        <source>Changed while the desk was closed</source>
        <translation>Geändert, als der Abstimmplatz geschlossen war</translation>
    </message>
    <message>
        <source>A/B</source>
        <translation>A/B</translation>
    </message>
    <message>
        <source>A is in force</source>
        <translation>A ist in Kraft</translation>
    </message>
    <message>
        <source>B is in force</source>
        <translation>B ist in Kraft</translation>
    </message>
    <message>
        <source>A is now a copy of B</source>
        <translation>A ist jetzt eine Kopie von B</translation>
    </message>
    <message>
        <source>B is now a copy of A</source>
        <translation>B ist jetzt eine Kopie von A</translation>
    </message>
    <message>
        <source>Choose or import a set-up to see what it would change</source>
        <translation>Wählen oder importieren Sie eine Einstellung, um zu sehen, was sie ändern würde</translation>
    </message>
    <message>
        <source>"%1" changes %2 values</source>
        <translation>„%1“ ändert %2 Werte</translation>
    </message>
    <message>
        <source>"%1" is in force</source>
        <translation>„%1“ ist in Kraft</translation>
    </message>
    <message>
        <source>"%1" is deleted</source>
        <translation>„%1“ ist gelöscht</translation>
    </message>
    <message>
        <source>Keep the present set-up under a name</source>
        <translation>Jetzige Einstellung unter einem Namen merken</translation>
    </message>
    <message>
        <source>Export the present set-up</source>
        <translation>Jetzige Einstellung exportieren</translation>
    </message>
    <message>
        <source>Import a set-up</source>
        <translation>Einstellung importieren</translation>
    </message>
    <message>
        <source>Set-up (*.txt)</source>
        <translation>Einstellung (*.txt)</translation>
    </message>
    <message>
        <source>Keep as…</source>
        <translation>Merken als …</translation>
    </message>
    <message>
        <source>Keeps the present set-up under a name</source>
        <translation>Merkt die jetzige Einstellung unter einem Namen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Puts the set-up that is shown in force</source>
        <translation>Setzt die gezeigte Einstellung in Kraft</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deletes the chosen set-up</source>
        <translation>Löscht die gewählte Einstellung</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Shows what a set-up file would change; Apply puts it in force</source>
        <translation>Zeigt, was eine Datei ändern würde; Anwenden setzt sie in Kraft</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Writes the present set-up into a file, for another unit</source>
        <translation>Schreibt die jetzige Einstellung in eine Datei, für ein anderes Gerät</translation>
    </message>
    <message>
        <source>Changes between two set-ups; what you change goes to the one in force</source>
        <translation>Wechselt zwischen zwei Einstellungen; was Sie ändern, gilt für die in Kraft</translation>
    </message>
    <message>
        <source>Copy to the other</source>
        <translation>Auf die andere kopieren</translation>
    </message>
    <message>
        <source>Makes the other one of A and B a copy of the one in force</source>
        <translation>Macht die andere von A und B zur Kopie der in Kraft</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Every change; touch one to go back or forth to it</source>
        <translation>Jede Änderung; wählen Sie eine, um zu ihr zu gehen</translation>
    </message>
    <message>
        <source>Before all changes</source>
        <translation>Vor allen Änderungen</translation>
    </message>
    <message>
        <source>Changes of the set-up</source>
        <translation>Was die Einstellung ändert</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>In the set-up</source>
        <translation>In der Einstellung</translation>
    </message>
    <message>
        <source>%1 dB to match</source>
        <translation>%1 dB zum Angleichen</translation>
    </message>
    <message>
        <source>Match levels</source>
        <translation>Pegel angleichen</translation>
    </message>
    <message>
        <source>Makes the louder of A and B as quiet as the other, so that the ear compares the sound</source>
        <translation>Macht die lautere von A und B so leise wie die andere, damit das Ohr den Klang vergleicht</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Frequenzgang</translation>
    </message>
    <message>
        <source>What the loudspeakers and their sum make of every frequency</source>
        <translation>Was die Lautsprecher und ihre Summe aus jeder Frequenz machen</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Shows or hides this curve</source>
        <translation>Zeigt diese Kurve oder blendet sie aus</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Shows the phase below the magnitude</source>
        <translation>Zeigt die Phase unter dem Betrag</translation>
    </message>
    <message>
        <source>Group delay</source>
        <translation>Gruppenlaufzeit</translation>
    </message>
    <message>
        <source>Shows the group delay below the magnitude</source>
        <translation>Zeigt die Gruppenlaufzeit unter dem Betrag</translation>
    </message>
    <message>
        <source>With delays</source>
        <translation>Mit Laufzeiten</translation>
    </message>
    <message>
        <source>Off: as if the delays made up for the distances of the loudspeakers</source>
        <translation>Aus: als glichen die Laufzeiten die Abstände der Lautsprecher aus</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Keeps the present curves beside the coming ones</source>
        <translation>Behält die jetzigen Kurven neben den kommenden</translation>
    </message>
    <message>
        <source>Zoom back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Shows the part that was shown before; a right click, too</source>
        <translation>Zeigt den Ausschnitt davor; auch mit Rechtsklick</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>Shows all frequencies</source>
        <translation>Zeigt alle Frequenzen</translation>
    </message>
    <message>
        <source>Saves the diagrams as a picture, PNG or SVG</source>
        <translation>Speichert die Diagramme als Bild, PNG oder SVG</translation>
    </message>
    <message>
        <source>Save the diagrams</source>
        <translation>Diagramme speichern</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Point at a curve to read its values; draw a frame to see more of it</source>
        <translation>Zeigen Sie auf eine Kurve, um ihre Werte zu lesen; ziehen Sie einen Rahmen, um mehr davon zu sehen</translation>
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
        <translation>(gehalten %1)</translation>
    </message>
    <message>
        <source>The main volume is 0: nothing is heard</source>
        <translation>Die Hauptlautstärke ist 0: es ist nichts zu hören</translation>
    </message>
    <message>
        <source>Hole of %1 dB at %2 Hz</source>
        <translation>Loch von %1 dB bei %2 Hz</translation>
    </message>
    <message>
        <source>Hole of more than %1 dB at %2 Hz</source>
        <translation>Loch von mehr als %1 dB bei %2 Hz</translation>
    </message>
    <message>
        <source>Overlap of %1 dB at %2 Hz</source>
        <translation>Überhöhung von %1 dB bei %2 Hz</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>try phase %1° for the subwoofers</source>
        <translation>versuchen Sie Phase %1° für die Subwoofer</translation>
    </message>
    <message>
        <source>try %1 Hz as the subwoofers' low-pass</source>
        <translation>versuchen Sie %1 Hz als Tiefpass der Subwoofer</translation>
    </message>
    <message>
        <source>try %1 Hz as the front high-pass</source>
        <translation>versuchen Sie %1 Hz als Hochpass vorn</translation>
    </message>
    <message>
        <source>try %1 Hz as the rear high-pass</source>
        <translation>versuchen Sie %1 Hz als Hochpass hinten</translation>
    </message>
    <message>
        <source>it comes of the delays, which differ</source>
        <translation>es kommt von den Laufzeiten, die verschieden sind</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>How loud each loudspeaker is, and what its limiter takes away</source>
        <translation>Wie laut jeder Lautsprecher ist und was sein Begrenzer wegnimmt</translation>
    </message>
    <message>
        <source>Limiter front</source>
        <translation>Begrenzer vorn</translation>
    </message>
    <message>
        <source>Limiter rear</source>
        <translation>Begrenzer hinten</translation>
    </message>
    <message>
        <source>Limiter sub</source>
        <translation>Begrenzer Sub</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>Nichts spielt</translation>
    </message>
    <message>
        <source>Nothing plays: no sound server answers</source>
        <translation>Nichts spielt: kein Tonserver antwortet</translation>
    </message>
    <message>
        <source>Nothing plays: there is no sound device</source>
        <translation>Nichts spielt: es gibt kein Tongerät</translation>
    </message>
    <message>
        <source>Nothing plays: the unit makes no sound here</source>
        <translation>Nichts spielt: das Gerät macht hier keinen Ton</translation>
    </message>
    <message>
        <source>Nothing plays: what was to be played cannot be read</source>
        <translation>Nichts spielt: was gespielt werden soll, lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Es spielt</translation>
    </message>
    <message>
        <source>%1 Hz, %2</source>
        <translation>%1 Hz, %2</translation>
    </message>
    <message>
        <source>+%1 dB at %2: turn down by %1 dB or expect the limiter</source>
        <translation>+%1 dB bei %2: um %1 dB leiser stellen oder mit dem Begrenzer rechnen</translation>
    </message>
    <message>
        <source>Headroom of %1 dB; least of it at %2</source>
        <translation>Reserve von %1 dB; am kleinsten bei %2</translation>
    </message>
    <message>
        <source>Forgets the highest values and the clips</source>
        <translation>Vergisst die höchsten Werte und die Übersteuerungen</translation>
    </message>
    <message>
        <source>What the limiter takes away, in dB</source>
        <translation>Was der Begrenzer wegnimmt, in dB</translation>
    </message>
    <message>
        <source>Peak of the samples, held for 1.5 s, falling by 20 dB in 1.7 s (IEC 60268-18); within it the mean of 300 ms</source>
        <translation>Spitze der Abtastwerte, 1,5 s gehalten, fällt um 20 dB in 1,7 s (IEC 60268-18); darin der Mittelwert über 300 ms</translation>
    </message>
    <message>
        <source>The most that the limiter took away since the reset, in dB</source>
        <translation>Das meiste, was der Begrenzer seit dem Zurücksetzen wegnahm, in dB</translation>
    </message>
    <message>
        <source>Highest sample since the reset, in dB of full scale</source>
        <translation>Höchster Abtastwert seit dem Zurücksetzen, in dB der Vollaussteuerung</translation>
    </message>
    <message>
        <source>Mean of 300 ms in dB; a sine of full scale reads 0 dB (AES17)</source>
        <translation>Mittelwert über 300 ms in dB; ein Sinus mit Vollaussteuerung zeigt 0 dB (AES17)</translation>
    </message>
    <message>
        <source>How often the sound went beyond full scale since the reset, and the limiter caught it</source>
        <translation>Wie oft der Ton seit dem Zurücksetzen über die Vollaussteuerung ging und der Begrenzer ihn auffing</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Höchster</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Übersteuert</translation>
    </message>
    <message>
        <source>For a tone of full scale at the frequency that the settings raise most</source>
        <translation>Für einen Ton mit Vollaussteuerung bei der Frequenz, die die Einstellungen am meisten anheben</translation>
    </message>
</context>
</TS>
