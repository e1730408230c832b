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
        <source>What happens between the applications and the unit</source>
        <translation>Was zwischen den Anwendungen und dem Gerät geschieht</translation>
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
</context>
</TS>
