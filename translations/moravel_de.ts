<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>moravel</name>
    <message>
        <source>This action cannot be undone.</source>
        <translation>Dies lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected pic?</source>
        <translation>Das ausgewählte Bild wirklich löschen?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete the %n selected pics?</source>
        <translation>
            <numerusform>Das ausgewählte Bild wirklich löschen?</numerusform>
            <numerusform>Die %Ln ausgewählten Bilder wirklich löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>File too big</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>That pic will take ages to display, so your system will appear frozen.</source>
        <translation>Bis dieses Bild zu sehen ist, vergeht sehr viel Zeit; das System scheint so lange stillzustehen.</translation>
    </message>
    <message>
        <source>Don&apos;t Show</source>
        <translation>Nicht zeigen</translation>
    </message>
    <message>
        <source>Show Anyway</source>
        <translation>Trotzdem zeigen</translation>
    </message>
    <message>
        <source>Error opening System Preferences</source>
        <translation>Fehler beim Öffnen der Systemeinstellungen</translation>
    </message>
    <message>
        <source>Keep this desktop for 1 hour</source>
        <translation>Dieses Hintergrundbild 1 Stunde behalten</translation>
    </message>
    <message>
        <source>Change desktop now</source>
        <translation>Hintergrundbild jetzt wechseln</translation>
    </message>
    <message>
        <source>Back to previous desktop</source>
        <translation>Zurück zum vorigen Hintergrundbild</translation>
    </message>
    <message numerus="yes">
        <source>New desktop in %n hours</source>
        <translation>
            <numerusform>Neues Hintergrundbild in %Ln&#xa0;Stunde</numerusform>
            <numerusform>Neues Hintergrundbild in %Ln&#xa0;Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>New desktop in %n minutes</source>
        <translation>
            <numerusform>Neues Hintergrundbild in %Ln&#xa0;Minute</numerusform>
            <numerusform>Neues Hintergrundbild in %Ln&#xa0;Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>New desktop in about 1 minute</source>
        <translation>Neues Hintergrundbild in etwa 1&#xa0;Minute</translation>
    </message>
    <message>
        <source>Desktop set by System Prefs</source>
        <translation>Hintergrundbild aus den Systemeinstellungen</translation>
    </message>
    <message>
        <source>No desktop change scheduled</source>
        <translation>Kein Wechsel des Hintergrundbilds geplant</translation>
    </message>
    <message>
        <source>Moravel is free software:</source>
        <translation>Moravel ist freie Software:</translation>
    </message>
    <message>
        <source>It uses these libraries, each under its own licence:</source>
        <translation>Es verwendet diese Bibliotheken, jede unter ihrer eigenen Lizenz:</translation>
    </message>
    <message>
        <source>No source is known yet: the service has not answered.</source>
        <translation>Noch ist keine Quelle bekannt: Der Dienst hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The pictures belong to those who made them. They come from:</source>
        <translation>Die Bilder gehören denen, die sie gemacht haben. Sie stammen von:</translation>
    </message>
    <message>
        <source>They were found by the service at %1.</source>
        <translation>Gefunden hat sie der Dienst unter %1.</translation>
    </message>
    <message>
        <source>About Moravel</source>
        <translation>Über Moravel</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Quellen</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>&amp;Lizenzen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Shows the pictures of the day of many sources side by side, keeps every one with its caption, and makes any of them the desktop picture.</source>
        <translation>Zeigt die Bilder des Tages vieler Quellen nebeneinander, bewahrt jedes mit seiner Bildunterschrift auf und macht jedes davon zum Schreibtischhintergrund.</translation>
    </message>
    <message>
        <source>Set as &amp;Desktop</source>
        <translation>Als &amp;Hintergrundbild verwenden</translation>
    </message>
    <message>
        <source>Show &amp;Large Picture</source>
        <translation>&amp;Großes Bild zeigen</translation>
    </message>
    <message>
        <source>Show in &amp;File Manager</source>
        <translation>In der &amp;Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Look Up &amp;Caption Again</source>
        <translation>&amp;Bildunterschrift neu abrufen</translation>
    </message>
    <message>
        <source>&amp;New Desktop</source>
        <translation>&amp;Neues Hintergrundbild</translation>
    </message>
    <message>
        <source>&amp;Previous Desktop</source>
        <translation>&amp;Voriges Hintergrundbild</translation>
    </message>
    <message>
        <source>&amp;Restore Picture</source>
        <translation>Bild &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Service &amp;Home Page</source>
        <translation>&amp;Website des Dienstes</translation>
    </message>
    <message>
        <source>&amp;News</source>
        <translation>&amp;Neuigkeiten</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>&amp;Versionshinweise</translation>
    </message>
    <message>
        <source>Report a &amp;Bug…</source>
        <translation>&amp;Fehler melden&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;About Moravel</source>
        <translation>&amp;Über Moravel</translation>
    </message>
    <message>
        <source>&amp;Previous Picture</source>
        <translation>&amp;Voriges Bild</translation>
    </message>
    <message>
        <source>&amp;Next Picture</source>
        <translation>&amp;Nächstes Bild</translation>
    </message>
    <message>
        <source>&amp;Original Page</source>
        <translation>&amp;Originalseite</translation>
    </message>
    <message>
        <source>Share by &amp;E-mail</source>
        <translation>Per &amp;E-Mail teilen</translation>
    </message>
    <message>
        <source>Share on Face&amp;book</source>
        <translation>Auf Face&amp;book teilen</translation>
    </message>
    <message>
        <source>Share on &amp;Twitter</source>
        <translation>Auf &amp;Twitter teilen</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Fit &amp;Window to Picture</source>
        <translation>&amp;Fenster an Bild anpassen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Zoom to Fit</source>
        <translation>Gan&amp;zes Bild</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>O&amp;riginalgröße</translation>
    </message>
    <message>
        <source>Full Sc&amp;reen</source>
        <translation>Vollb&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>This picture was downloaded using an older version of Moravel, so no detailed information is available.</source>
        <translation>Dieses Bild wurde mit einer älteren Version von Moravel geladen; nähere Angaben dazu gibt es nicht.</translation>
    </message>
    <message>
        <source>Looking for more info...</source>
        <translation>Weitere Informationen werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 (%2 x %3 pixels)</source>
        <translation>%1 (%2 × %3 Pixel)</translation>
    </message>
    <message>
        <source>%1 (%2 x %3 pixels, %4)</source>
        <translation>%1 (%2 × %3 Pixel, %4)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Moravel</source>
        <translation>Moravel</translation>
    </message>
    <message>
        <source>Set as desktop</source>
        <translation>Als Hintergrundbild verwenden</translation>
    </message>
    <message>
        <source>New picture of the day</source>
        <translation>Neues Bild des Tages</translation>
    </message>
    <message>
        <source>The script ended with error %1.</source>
        <translation>Das Skript endete mit dem Fehler %1.</translation>
    </message>
    <message>
        <source>bad request</source>
        <translation>ungültige Anfrage</translation>
    </message>
    <message>
        <source>login required</source>
        <translation>Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>request timed out</source>
        <translation>Zeitüberschreitung der Anfrage</translation>
    </message>
    <message>
        <source>no longer there</source>
        <translation>nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>too many requests</source>
        <translation>zu viele Anfragen</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>interner Fehler</translation>
    </message>
    <message>
        <source>bad gateway</source>
        <translation>fehlerhaftes Gateway</translation>
    </message>
    <message>
        <source>service unavailable</source>
        <translation>Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>gateway timed out</source>
        <translation>Zeitüberschreitung am Gateway</translation>
    </message>
    <message>
        <source>unexpected answer</source>
        <translation>unerwartete Antwort</translation>
    </message>
    <message>
        <source>request refused</source>
        <translation>Anfrage abgelehnt</translation>
    </message>
    <message>
        <source>server error</source>
        <translation>Serverfehler</translation>
    </message>
    <message>
        <source>The server refers to a forbidden address.</source>
        <translation>Der Server verweist auf eine unzulässige Adresse.</translation>
    </message>
    <message>
        <source>The server answered with error %1 (%2).</source>
        <translation>Der Server antwortete mit dem Fehler %1 (%2).</translation>
    </message>
    <message>
        <source>The server %1 could not be found.</source>
        <translation>Der Server %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The server %1 could not be reached.</source>
        <translation>Der Server %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be made.</source>
        <translation>Zu %1 ließ sich keine sichere Verbindung herstellen.</translation>
    </message>
    <message>
        <source>The proxy server could not be used.</source>
        <translation>Der Proxy-Server ließ sich nicht verwenden.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Die Antwort ist größer als %1.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>Der Server hat zu lange nicht geantwortet.</translation>
    </message>
    <message>
        <source>The connection was lost before the answer was complete.</source>
        <translation>Die Verbindung brach ab, bevor die Antwort vollständig war.</translation>
    </message>
    <message>
        <source>The server&apos;s answer could not be understood.</source>
        <translation>Die Antwort des Servers war unverständlich.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Die Adresse ist ungültig.</translation>
    </message>
    <message>
        <source>Looking up caption...</source>
        <translation>Bildunterschrift wird abgerufen&#xa0;…</translation>
    </message>
    <message>
        <source>Looking for new pic from %1...</source>
        <translation>Neues Bild von %1 wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Double-click any thumbnail to set as desktop.</source>
        <translation>Ein Doppelklick auf ein Vorschaubild macht es zum Hintergrundbild.</translation>
    </message>
    <message>
        <source>Downloading pic from %1: %2 of %3 KB</source>
        <translation>Bild von %1 wird geladen: %2 von %3 KB</translation>
    </message>
    <message>
        <source>Saving pic from %1...</source>
        <translation>Bild von %1 wird gespeichert&#xa0;…</translation>
    </message>
    <message>
        <source>(This text is long. It is in the clipboard as well: paste it here if its end is missing.)

</source>
        <translation>(Dieser Text ist lang. Er liegt auch in der Zwischenablage: Fehlt hier sein Ende, lässt er sich von dort einfügen.)

</translation>
    </message>
    <message>
        <source>The original web page could not be found.</source>
        <translation>Die ursprüngliche Webseite wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be posted on Facebook.</source>
        <translation>Dieses Bild konnte leider nicht auf Facebook geteilt werden.</translation>
    </message>
    <message>
        <source>You will now be taken to your web browser with a link that will allow you to share this picture on Facebook.

More information about the picture is in the clipboard for pasting into the Facebook messsage area.
</source>
        <translation>Gleich öffnet sich der Webbrowser mit einem Link, über den sich dieses Bild auf Facebook teilen lässt.

Weitere Angaben zum Bild liegen in der Zwischenablage und können dort in das Nachrichtenfeld eingefügt werden.
</translation>
    </message>
    <message>
        <source>This message will not be shown again.</source>
        <translation>Dieser Hinweis erscheint nicht wieder.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be posted on Twitter.</source>
        <translation>Dieses Bild konnte leider nicht auf Twitter geteilt werden.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be shared via email.</source>
        <translation>Dieses Bild konnte leider nicht per E-Mail geteilt werden.</translation>
    </message>
    <message>
        <source>Error creating Moravel folder.</source>
        <translation>Fehler beim Anlegen des Moravel-Ordners.</translation>
    </message>
    <message>
        <source>Error creating Moravel thumbs folder.</source>
        <translation>Fehler beim Anlegen des Moravel-Ordners für Vorschaubilder.</translation>
    </message>
    <message>
        <source>Error creating Moravel support folder.</source>
        <translation>Fehler beim Anlegen des Moravel-Ordners für Programmdaten.</translation>
    </message>
    <message>
        <source>Error moving Moravel data file to support folder.</source>
        <translation>Fehler beim Verschieben der Moravel-Datei in den Ordner für Programmdaten.</translation>
    </message>
    <message>
        <source>Error storing Moravel data.</source>
        <translation>Fehler beim Speichern der Moravel-Daten.</translation>
    </message>
    <message>
        <source>Deleted.

Double-click to un-delete.</source>
        <translation>Gelöscht.

Ein Doppelklick stellt das Bild wieder her.</translation>
    </message>
    <message>
        <source>the screen is locked</source>
        <translation>der Bildschirm gesperrt ist</translation>
    </message>
    <message>
        <source>another program fills the screen</source>
        <translation>ein anderes Programm den Bildschirm füllt</translation>
    </message>
    <message>
        <source>the connection is metered</source>
        <translation>die Verbindung getaktet ist</translation>
    </message>
    <message>
        <source>the battery is being saved</source>
        <translation>der Akku geschont wird</translation>
    </message>
    <message>
        <source>the battery is low</source>
        <translation>der Akku fast leer ist</translation>
    </message>
    <message>
        <source>there is no connection</source>
        <translation>keine Verbindung besteht</translation>
    </message>
    <message>
        <source>New pictures wait, since %1.</source>
        <translation>Neue Bilder warten, weil %1.</translation>
    </message>
    <message>
        <source>New desktop waits, since %1</source>
        <translation>Das nächste Hintergrundbild wartet, weil %1</translation>
    </message>
    <message>
        <source>Another request came first.</source>
        <translation>Eine andere Anfrage kam zuvor.</translation>
    </message>
    <message>
        <source>Pictures of the day on your desktop from the start.</source>
        <translation>Bilder des Tages auf dem Schreibtisch, von Anfang an.</translation>
    </message>
    <message>
        <source>The desktop did not allow it.</source>
        <translation>Die Arbeitsumgebung hat es nicht erlaubt.</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Caption:</source>
        <translation>Bildunterschrift:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Seite:</translation>
    </message>
    <message>
        <source>Try &apos;moravel --help&apos;.</source>
        <translation>„moravel --help“ zeigt mehr.</translation>
    </message>
    <message>
        <source>the path of a picture</source>
        <translation>den Pfad eines Bildes</translation>
    </message>
    <message>
        <source>--sources needs &quot;all&quot; or a list of source names</source>
        <translation>--sources braucht „all“ oder eine Liste von Quellennamen</translation>
    </message>
    <message>
        <source>unknown option: %1</source>
        <translation>unbekannte Option: %1</translation>
    </message>
    <message>
        <source>--json goes with the command current</source>
        <translation>--json gehört zum Befehl current</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>unbekannter Befehl: %1</translation>
    </message>
    <message>
        <source>%1 does not go with the command %2</source>
        <translation>%1 passt nicht zum Befehl %2</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message>
        <source>%1 cannot take: %2</source>
        <translation>%1 nimmt nicht an: %2</translation>
    </message>
    <message>
        <source>Usage: moravel [--sources LIST] [--hidden]
  or:  moravel COMMAND
Shows the pictures of the day of many sources and keeps them in your Pictures folder.

Options:
  --sources LIST  switch these sources on and remember it: long names with commas between,
                  or all
  --hidden        start without the window, in the tray (minimised where there is none)
  --json          with current: answer in JSON
  -h, --help      show this text
  --version       show the version and the address of the service

Commands for the running program:
  next            change the desktop picture
  previous        go back to the desktop picture before
  hold            keep the desktop picture for an hour
  current         tell source, date, caption, file and page of the desktop picture
  set FILE        make a picture file the desktop
  show            bring the window to the front
  large           show a picture large: the desktop&apos;s, as a rule
  browser         open the browser of the collection
  quit            end the program

Started a second time without a command, the program brings its window to the front and hands
the sources over.

Exit codes: 0 done; 1 refused or no answer; 2 wrong arguments; 3 not running (commands only).
</source>
        <translation>Aufruf: moravel [--sources LISTE] [--hidden]
  oder: moravel BEFEHL
Zeigt die Bilder des Tages vieler Quellen und bewahrt sie im Bilderordner auf.

Optionen:
  --sources LISTE  diese Quellen einschalten und sich das merken: lange Namen, durch Kommas
                   getrennt, oder all (alle)
  --hidden         ohne Fenster starten, im Infobereich (minimiert, wo es keinen gibt)
  --json           mit current: Antwort in JSON
  -h, --help       diesen Text zeigen
  --version        die Version und die Adresse des Dienstes zeigen

Befehle an das laufende Programm:
  next             das Hintergrundbild wechseln
  previous         zum vorigen Hintergrundbild zurückkehren
  hold             das Hintergrundbild eine Stunde behalten
  current          Quelle, Datum, Bildunterschrift, Datei und Seite des Hintergrundbilds nennen
  set DATEI        eine Bilddatei zum Hintergrundbild machen
  show             das Fenster nach vorn holen
  large            ein Bild groß zeigen, in der Regel das Hintergrundbild
  browser          die Bildersammlung öffnen
  quit             das Programm beenden

Ein zweites Mal ohne Befehl gestartet, holt das Programm sein Fenster nach vorn und übernimmt
die Quellen.

Rückgabewerte: 0 erledigt; 1 abgelehnt oder keine Antwort; 2 falsche Argumente; 3 läuft nicht
(nur bei Befehlen).
</translation>
    </message>
    <message>
        <source>No desktop picture can be set here.</source>
        <translation>Hier lässt sich kein Hintergrundbild setzen.</translation>
    </message>
    <message>
        <source>There is nothing to show yet.</source>
        <translation>Es gibt noch nichts zu zeigen.</translation>
    </message>
    <message>
        <source>There is no such file; its path must be absolute.</source>
        <translation>Diese Datei gibt es nicht; ihr Pfad muss absolut sein.</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read.</source>
        <translation>Die Datei ist kein lesbares Bild.</translation>
    </message>
    <message>
        <source>It is not known what the desktop shows.</source>
        <translation>Es ist nicht bekannt, was der Schreibtisch zeigt.</translation>
    </message>
    <message>
        <source>There is no previous desktop.</source>
        <translation>Es gibt kein voriges Hintergrundbild.</translation>
    </message>
    <message>
        <source>The desktop changes every hour or more rarely.</source>
        <translation>Das Hintergrundbild wechselt jede Stunde oder seltener.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Den Befehl „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Moravel is still starting</source>
        <translation>Moravel startet noch</translation>
    </message>
    <message>
        <source>Moravel takes no actions</source>
        <translation>Moravel nimmt keine Befehle an</translation>
    </message>
    <message>
        <source>Moravel is not running</source>
        <translation>Moravel läuft nicht</translation>
    </message>
    <message>
        <source>Moravel is running but does not answer</source>
        <translation>Moravel läuft, antwortet aber nicht</translation>
    </message>
</context>
<context>
    <name>moravel::Browser</name>
    <message>
        <source>No pictures yet</source>
        <translation>Noch keine Bilder</translation>
    </message>
    <message>
        <source>The pictures that Moravel gathers appear here, the newest first. Drop files or folders to look at others.</source>
        <translation>Hier erscheinen die Bilder, die Moravel sammelt, die neuesten zuerst. Andere Bilder lassen sich ansehen, indem Dateien oder Ordner hierher gezogen werden.</translation>
    </message>
    <message>
        <source>No pictures found</source>
        <translation>Keine Bilder gefunden</translation>
    </message>
    <message>
        <source>No caption contains what you are looking for.</source>
        <translation>Keine Bildunterschrift enthält den gesuchten Text.</translation>
    </message>
    <message>
        <source>This source has no picture with such a caption.</source>
        <translation>Diese Quelle hat kein Bild mit einer solchen Unterschrift.</translation>
    </message>
</context>
<context>
    <name>moravel::BrowserSide</name>
    <message>
        <source>Picture &amp;Browser</source>
        <translation>Bi&amp;ldersammlung</translation>
    </message>
</context>
<context>
    <name>moravel::BrowserWindow</name>
    <message>
        <source>Picture Browser</source>
        <translation>Bildersammlung</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Show the pictures of one source only</source>
        <translation>Nur die Bilder einer Quelle zeigen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Search captions</source>
        <translation>In Bildunterschriften suchen</translation>
    </message>
    <message>
        <source>Picture size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Set as Desktop</source>
        <translation>Als Hintergrundbild verwenden</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures.</source>
        <translation>
            <numerusform>%Ln Bild.</numerusform>
            <numerusform>%Ln Bilder.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>moravel::CellButtonBar</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
</context>
<context>
    <name>moravel::CellWidget</name>
    <message>
        <source>Current desktop</source>
        <translation>Aktuelles Hintergrundbild</translation>
    </message>
    <message>
        <source>Previous desktop</source>
        <translation>Voriges Hintergrundbild</translation>
    </message>
    <message>
        <source>New desktop</source>
        <translation>Neues Hintergrundbild</translation>
    </message>
    <message>
        <source>More info</source>
        <translation>Mehr Informationen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>moravel::DatePickerWidget</name>
    <message>
        <source>Date of the pictures</source>
        <translation>Datum der Bilder</translation>
    </message>
</context>
<context>
    <name>moravel::DesktopMenu</name>
    <message>
        <source>Change &amp;Every</source>
        <translation>&amp;Wechseln</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>5 Minutes</source>
        <translation>Alle 5 Minuten</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>Alle 15 Minuten</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>Alle 30 Minuten</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Jede Stunde</translation>
    </message>
    <message>
        <source>2 Hours</source>
        <translation>Alle 2 Stunden</translation>
    </message>
    <message>
        <source>4 Hours</source>
        <translation>Alle 4 Stunden</translation>
    </message>
    <message>
        <source>8 Hours</source>
        <translation>Alle 8 Stunden</translation>
    </message>
    <message>
        <source>24 Hours</source>
        <translation>Alle 24 Stunden</translation>
    </message>
    <message>
        <source>&amp;Sizing</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Fit to Screen</source>
        <translation>In den Bildschirm einpassen</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>Bildschirm ausfüllen</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>All S&amp;creens</source>
        <translation>Alle &amp;Bildschirme</translation>
    </message>
    <message>
        <source>All Virtual &amp;Desktops</source>
        <translation>Alle virtuellen &amp;Arbeitsflächen</translation>
    </message>
    <message>
        <source>System Desktop Se&amp;ttings…</source>
        <translation>Hintergrundeinstellungen des &amp;Systems&#xa0;…</translation>
    </message>
    <message>
        <source>Change Desktop &amp;Now</source>
        <translation>Hintergrundbild &amp;jetzt wechseln</translation>
    </message>
    <message>
        <source>&amp;Back to Previous Desktop</source>
        <translation>&amp;Zurück zum vorigen Hintergrundbild</translation>
    </message>
    <message>
        <source>&amp;Keep This Desktop for 1 Hour</source>
        <translation>Dieses Hintergrundbild 1 Stunde b&amp;ehalten</translation>
    </message>
</context>
<context>
    <name>moravel::DiskSide</name>
    <message>
        <source>&amp;Disk Space…</source>
        <translation>S&amp;peicherplatz&#xa0;…</translation>
    </message>
</context>
<context>
    <name>moravel::DiskSpaceSheet</name>
    <message>
        <source>Disk space by source</source>
        <translation>Speicherplatz nach Quellen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Disk Space</source>
        <translation>Speicherplatz</translation>
    </message>
    <message>
        <source>Looking at the pictures…</source>
        <translation>Die Bilder werden gezählt&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Keep the pictures below:</source>
        <translation>&amp;Höchstens behalten:</translation>
    </message>
    <message>
        <source>No Limit</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Other files in the folder</source>
        <translation>Andere Dateien im Ordner</translation>
    </message>
    <message>
        <source>All pictures stay.</source>
        <translation>Alle Bilder bleiben.</translation>
    </message>
    <message>
        <source>All pictures stay for now.</source>
        <translation>Vorerst bleiben alle Bilder.</translation>
    </message>
    <message>
        <source>What you set as desktop stays, and so do thumbnails and captions. A picture that went comes back when you open it.</source>
        <translation>Was als Hintergrundbild gewählt wurde, bleibt, ebenso Vorschaubilder und Bildunterschriften. Ein entferntes Bild kommt zurück, sobald es geöffnet wird.</translation>
    </message>
    <message>
        <source>The collection takes %1. Full pictures: %2 (%3).</source>
        <translation>Die Sammlung belegt %1. Vollständige Bilder: %2 (%3).</translation>
    </message>
    <message>
        <source>Oldest pictures that go to the Trash now: %1 (%2).</source>
        <translation>Älteste Bilder, die jetzt in den Papierkorb kommen: %1 (%2).</translation>
    </message>
</context>
<context>
    <name>moravel::GridPanel</name>
    <message>
        <source>The picture service does not answer</source>
        <translation>Der Bilderdienst antwortet nicht</translation>
    </message>
    <message>
        <source>No list of sources could be loaded. Moravel shows pictures as soon as the service can be reached.</source>
        <translation>Die Liste der Quellen ließ sich nicht laden. Moravel zeigt Bilder, sobald der Dienst erreichbar ist.</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>No source is switched on</source>
        <translation>Keine Quelle ist eingeschaltet</translation>
    </message>
    <message>
        <source>Switch on the sources that you want to see in the Sources menu.</source>
        <translation>Die gewünschten Quellen lassen sich im Menü „Quellen“ einschalten.</translation>
    </message>
</context>
<context>
    <name>moravel::GridView</name>
    <message>
        <source>Pictures of the day</source>
        <translation>Bilder des Tages</translation>
    </message>
</context>
<context>
    <name>moravel::LargePicWindow</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>Diese Datei lässt sich nicht als Bild zeigen.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
</context>
<context>
    <name>moravel::MainWindow</name>
    <message>
        <source>Show &amp;Large Picture</source>
        <translation>&amp;Großes Bild zeigen</translation>
    </message>
    <message>
        <source>Moravel</source>
        <translation>Moravel</translation>
    </message>
    <message>
        <source>&amp;Previous Day</source>
        <translation>&amp;Voriger Tag</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Voriger Tag</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>&amp;Nächster Tag</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Nächster Tag</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Quellen</translation>
    </message>
    <message>
        <source>&amp;Desktop</source>
        <translation>&amp;Schreibtisch</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Show &amp;Side Bar</source>
        <translation>&amp;Seitenleiste zeigen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
</context>
<context>
    <name>moravel::PicDetails</name>
    <message>
        <source>About this picture</source>
        <translation>Über dieses Bild</translation>
    </message>
</context>
<context>
    <name>moravel::QuietSide</name>
    <message>
        <source>Stay Quiet &amp;When Needed</source>
        <translation>Bei Bedarf &amp;ruhig bleiben</translation>
    </message>
    <message>
        <source>On a low or saved battery, on a metered connection, while another program fills the screen and while it is locked, nothing is fetched and the desktop stays.</source>
        <translation>Bei schwachem oder geschontem Akku, bei getakteter Verbindung, solange ein anderes Programm den Bildschirm füllt und solange er gesperrt ist, wird nichts geladen, und das Hintergrundbild bleibt.</translation>
    </message>
</context>
<context>
    <name>moravel::ShareSide</name>
    <message>
        <source>There is no news.</source>
        <translation>Es gibt nichts Neues.</translation>
    </message>
</context>
<context>
    <name>moravel::SideBar</name>
    <message>
        <source>&amp;Keep for 1 hour</source>
        <translation>1 Stunde &amp;behalten</translation>
    </message>
    <message>
        <source>Read the &amp;News</source>
        <translation>&amp;Neuigkeiten lesen</translation>
    </message>
</context>
<context>
    <name>moravel::SourceGrid</name>
    <message>
        <source>Switch &amp;All On</source>
        <translation>Alle &amp;einschalten</translation>
    </message>
    <message>
        <source>Switch All &amp;Off</source>
        <translation>Alle &amp;ausschalten</translation>
    </message>
</context>
<context>
    <name>moravel::Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>moravel::SplitView</name>
    <message>
        <source>Double-click to hide or show the side bar.</source>
        <translation>Ein Doppelklick verbirgt oder zeigt die Seitenleiste.</translation>
    </message>
</context>
<context>
    <name>moravel::StartSide</name>
    <message>
        <source>Start at &amp;Login</source>
        <translation>Beim An&amp;melden starten</translation>
    </message>
    <message>
        <source>Error changing the start at login.</source>
        <translation>Fehler beim Ändern des Starts bei der Anmeldung.</translation>
    </message>
</context>
<context>
    <name>moravel::ThumbView</name>
    <message>
        <source>Double-click to set as desktop.</source>
        <translation>Ein Doppelklick macht es zum Hintergrundbild.</translation>
    </message>
    <message>
        <source>Looking for new pic...</source>
        <translation>Neues Bild wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Delete this pic.</source>
        <translation>Dieses Bild löschen.</translation>
    </message>
    <message>
        <source>Change to a new random desktop now.</source>
        <translation>Jetzt zu einem neuen, zufälligen Hintergrundbild wechseln.</translation>
    </message>
    <message>
        <source>Go back to the previous desktop pic.</source>
        <translation>Zum vorigen Hintergrundbild zurückkehren.</translation>
    </message>
    <message>
        <source>See more info about this pic.</source>
        <translation>Mehr über dieses Bild erfahren.</translation>
    </message>
    <message>
        <source>Refresh the data for this pic.</source>
        <translation>Die Angaben zu diesem Bild aktualisieren.</translation>
    </message>
    <message>
        <source>Nothing on %1</source>
        <translation>Nichts am %1</translation>
    </message>
    <message>
        <source>No answer for %1</source>
        <translation>Keine Antwort für %1</translation>
    </message>
    <message>
        <source>Nothing from this day to %1</source>
        <translation>Nichts von diesem Tag bis %1</translation>
    </message>
    <message>
        <source>The picture service did not answer</source>
        <translation>Der Bilderdienst hat nicht geantwortet</translation>
    </message>
    <message>
        <source>The picture could not be loaded</source>
        <translation>Das Bild ließ sich nicht laden</translation>
    </message>
</context>
<context>
    <name>moravel::ToolTips</name>
    <message>
        <source>Show T&amp;ool Tips</source>
        <translation>&amp;Kurzinfos zeigen</translation>
    </message>
    <message>
        <source>Click here to see the pic in it&apos;s original web page.</source>
        <translation>Hier klicken, um das Bild auf seiner ursprünglichen Webseite zu sehen.</translation>
    </message>
</context>
<context>
    <name>moravel::WelcomePanel</name>
    <message>
        <source>Welcome to Moravel</source>
        <translation>Willkommen bei Moravel</translation>
    </message>
    <message>
        <source>Choose the sources whose pictures of the day you want to see. You can change this at any time in the Sources menu.</source>
        <translation>Welche Quellen sollen ihre Bilder des Tages zeigen? Die Auswahl lässt sich jederzeit im Menü „Quellen“ ändern.</translation>
    </message>
    <message>
        <source>Show &amp;Pictures</source>
        <translation>Bilder &amp;zeigen</translation>
    </message>
</context>
</TS>
