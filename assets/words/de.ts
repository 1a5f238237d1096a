<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Kinalyx</name>
    <message>
        <source>
and {} more</source>
        <translation>
und {} weitere</translation>
    </message>
    <message>
        <source>   %1 of %2</source>
        <translation>   %1 von %2</translation>
    </message>
    <message>
        <source> Microsoft lets no other program send from this mailbox with a password any more. Use a mailbox of another provider, or that of your club.</source>
        <translation> Microsoft lässt kein anderes Programm mehr mit einem Passwort aus diesem Postfach senden. Nehmen Sie ein Postfach eines anderen Anbieters oder das Ihres Vereins.</translation>
    </message>
    <message>
        <source> Providers such as this one want an "app password": a long one that you have made for this program alone on the page of your account, under security. The password with which you log in yourself does not work here.</source>
        <translation> Anbieter wie dieser wollen ein "App-Passwort": ein langes, das Sie nur für dieses Programm auf der Seite Ihres Kontos unter Sicherheit gemacht haben. Das Passwort, mit dem Sie sich selbst anmelden, gilt hier nicht.</translation>
    </message>
    <message>
        <source> Some servers wait for encryption from the first byte: see whether port and encryption in the settings are as your provider says.</source>
        <translation> Manche Server erwarten die Verschlüsselung vom ersten Byte an: Sehen Sie nach, ob Port und Verschlüsselung so eingestellt sind, wie Ihr Anbieter sagt.</translation>
    </message>
    <message>
        <source> The server says: "{} {}"</source>
        <translation> Der Server sagt: "{} {}"</translation>
    </message>
    <message>
        <source> What was stored before is kept in {}.</source>
        <translation> Was vorher gespeichert war, liegt in {}.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source> and {} more</source>
        <translation> und {} weitere</translation>
    </message>
    <message>
        <source> at {:.0f} a second, in truth {}MPH at {:.4g}</source>
        <translation> bei {:.0f} je Sekunde, in Wahrheit {}MPH bei {:.4g}</translation>
    </message>
    <message>
        <source> could not be copied: </source>
        <translation> konnte nicht kopiert werden: </translation>
    </message>
    <message>
        <source> could not be moved: </source>
        <translation> konnte nicht verschoben werden: </translation>
    </message>
    <message>
        <source> {}° - {}° angle I-O     {}° - {}° angle H-V </source>
        <translation> {}° - {}° Winkel I-A     {}° - {}° Winkel W-S </translation>
    </message>
    <message>
        <source> · not saved</source>
        <translation> · nicht gespeichert</translation>
    </message>
    <message>
        <source>"%1" cannot be shown: %2</source>
        <translation>"%1" kann nicht gezeigt werden: %2</translation>
    </message>
    <message>
        <source>"%1" has been unplugged.</source>
        <translation>"%1" wurde abgezogen.</translation>
    </message>
    <message>
        <source>"%1" is not answering.</source>
        <translation>"%1" antwortet nicht.</translation>
    </message>
    <message>
        <source>"%1" is there already. Do you want to replace it?</source>
        <translation>"%1" gibt es schon. Möchten Sie es ersetzen?</translation>
    </message>
    <message>
        <source>"%1" was saved, %2 MB.</source>
        <translation>"%1" wurde gespeichert, %2 MB.</translation>
    </message>
    <message>
        <source>"New Carve" Active. Click on the video to draw a square around the area that you want to create a MultiPicture.</source>
        <translation>"Neuer Ausschnitt" ist aktiv. Klicken Sie auf das Video und ziehen Sie ein Rechteck um den Bereich für das Mehrbild.</translation>
    </message>
    <message>
        <source>"Then" of "Then and now" is</source>
        <translation>"Damals" von "Damals und heute" ist</translation>
    </message>
    <message>
        <source>"{}" cannot be connected with "{}".</source>
        <translation>"{}" lässt sich nicht mit "{}" verbinden.</translation>
    </message>
    <message>
        <source>"{}" cannot be opened any more.</source>
        <translation>"{}" lässt sich nicht mehr öffnen.</translation>
    </message>
    <message>
        <source>"{}" cannot be put on the disc: {}.</source>
        <translation>"{}" kann nicht auf die Disc: {}.</translation>
    </message>
    <message>
        <source>"{}" cannot be written: {}.</source>
        <translation>"{}" kann nicht geschrieben werden: {}.</translation>
    </message>
    <message>
        <source>"{}" could not be converted: {}.</source>
        <translation>"{}" konnte nicht umgewandelt werden: {}.</translation>
    </message>
    <message>
        <source>"{}" could not be found.</source>
        <translation>"{}" war nicht zu finden.</translation>
    </message>
    <message>
        <source>"{}" could not be made there.</source>
        <translation>"{}" konnte dort nicht angelegt werden.</translation>
    </message>
    <message>
        <source>"{}" could not be replaced. The folder holds old and new files now: please copy again.</source>
        <translation>"{}" konnte nicht ersetzt werden. Im Ordner sind nun alte und neue Dateien: Bitte kopieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>"{}" has become larger than 4 GB, and a stick with {} takes no such file.</source>
        <translation>"{}" ist größer als 4 GB geworden, und ein Stick mit {} nimmt keine solche Datei.</translation>
    </message>
    <message>
        <source>"{}" has gone, or cannot be read.</source>
        <translation>"{}" ist weg oder nicht zu lesen.</translation>
    </message>
    <message>
        <source>"{}" has no input "{}".</source>
        <translation>"{}" hat keinen Eingang "{}".</translation>
    </message>
    <message>
        <source>"{}" has no output "{}".</source>
        <translation>"{}" hat keinen Ausgang "{}".</translation>
    </message>
    <message>
        <source>"{}" holds a letter before the "@" that mail servers do not know.</source>
        <translation>"{}" enthält vor dem "@" ein Zeichen, das Mailserver nicht kennen.</translation>
    </message>
    <message>
        <source>"{}" is larger than 4 GB, and a stick with {} takes no such file. Format the stick as exFAT, or shorten the video.</source>
        <translation>"{}" ist größer als 4 GB, und ein Stick mit {} nimmt keine solche Datei. Formatieren Sie den Stick mit exFAT, oder kürzen Sie das Video.</translation>
    </message>
    <message>
        <source>"{}" is larger than it may be.</source>
        <translation>"{}" ist größer als erlaubt.</translation>
    </message>
    <message>
        <source>"{}" is no e-mail address.</source>
        <translation>"{}" ist keine E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>"{}" is no name for a file or folder on a server.</source>
        <translation>"{}" ist kein Name für eine Datei oder einen Ordner auf einem Server.</translation>
    </message>
    <message>
        <source>"{}" is no port.</source>
        <translation>"{}" ist kein Port.</translation>
    </message>
    <message>
        <source>"{}" is not an email address.</source>
        <translation>"{}" ist keine E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>"{}" is there already.</source>
        <translation>"{}" gibt es schon.</translation>
    </message>
    <message>
        <source>"{}" is there already. Do you want to replace it?</source>
        <translation>"{}" gibt es schon. Möchten Sie es ersetzen?</translation>
    </message>
    <message>
        <source>"{}" was closed.</source>
        <translation>"{}" wurde geschlossen.</translation>
    </message>
    <message>
        <source>"{}" was not saved. {}</source>
        <translation>"{}" wurde nicht gespeichert. {}</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 - Kinalyx Viewer</source>
        <translation>%1 - Kinalyx Viewer</translation>
    </message>
    <message>
        <source>%1 MB in all</source>
        <translation>zusammen %1 MB</translation>
    </message>
    <message>
        <source>%1 Video Selected</source>
        <translation>%1 Video gewählt</translation>
    </message>
    <message>
        <source>%1 Videos Captured</source>
        <translation>%1 Videos aufgenommen</translation>
    </message>
    <message>
        <source>%1 Videos Selected</source>
        <translation>%1 Videos gewählt</translation>
    </message>
    <message>
        <source>%1 characters at most</source>
        <translation>Höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>%1 file for %2, to %3</source>
        <translation>%1 Datei für %2, an %3</translation>
    </message>
    <message>
        <source>%1 files for %2, to %3</source>
        <translation>%1 Dateien für %2, an %3</translation>
    </message>
    <message>
        <source>%1 for %2, as %3</source>
        <translation>%1 für %2, als %3</translation>
    </message>
    <message>
        <source>%1 kB/s</source>
        <translation>%1 kB/s</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>Linien: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2   %3</source>
        <translation>%1 von %2   %3</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 Prozent</translation>
    </message>
    <message>
        <source>%1 pictures lost</source>
        <translation>%1 Bilder verloren</translation>
    </message>
    <message>
        <source>%1 pictures of %2 x %3</source>
        <translation>%1 Bilder mit %2 x %3</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>%1 profile successfully updated.</source>
        <translation>%1-Profil wurde geändert.</translation>
    </message>
    <message>
        <source>%1 s, picture %2 of %3</source>
        <translation>%1 s, Bild %2 von %3</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>%1 squares across the picture</source>
        <translation>%1 Felder über das Bild</translation>
    </message>
    <message>
        <source>%1 to Record</source>
        <translation>%1 (Aufnahme)</translation>
    </message>
    <message>
        <source>%1%2 dB</source>
        <translation>%1%2 dB</translation>
    </message>
    <message>
        <source>%1, the other way round</source>
        <translation>%1, umgekehrt</translation>
    </message>
    <message>
        <source>%1.88 seconds | %2%3%4 frames</source>
        <translation>%1.88 Sekunden | %2%3%4 Bilder</translation>
    </message>
    <message>
        <source>%2 of these files are there already, "%1" among them. Do you want to replace them?</source>
        <translation>%2 dieser Dateien gibt es schon, darunter "%1". Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Double</source>
        <translation>&amp;Zwei</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Draw/Seen When</source>
        <translation>&amp;Zeichnen/Wann zu sehen</translation>
    </message>
    <message>
        <source>&amp;Exit Analysis</source>
        <translation>Analyse v&amp;erlassen</translation>
    </message>
    <message>
        <source>&amp;Go To</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Input level</source>
        <translation>&amp;Eingangspegel</translation>
    </message>
    <message>
        <source>&amp;Multi-Pic Mode</source>
        <translation>&amp;Mehrbild</translation>
    </message>
    <message>
        <source>&amp;Quad</source>
        <translation>&amp;Vier</translation>
    </message>
    <message>
        <source>&amp;Single</source>
        <translation>&amp;Eins</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Transparency Mode</source>
        <translation>&amp;Durchsicht</translation>
    </message>
    <message>
        <source>&amp;Trigger level</source>
        <translation>&amp;Auslösepegel</translation>
    </message>
    <message>
        <source>&amp;Triple {Triangular}</source>
        <translation>Drei {&amp;im Dreieck}</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Video</translation>
    </message>
    <message>
        <source>&amp;Video/Speed and Part Played</source>
        <translation>&amp;Video/Tempo und Abschnitt</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <translation>(kein Betreff)</translation>
    </message>
    <message>
        <source>, and 1 other is missing and has no usable value until it is set again</source>
        <translation>, und 1 weitere fehlt und hat keinen brauchbaren Wert, bis sie neu gesetzt wird</translation>
    </message>
    <message>
        <source>, and {} others are missing and have no usable value until they are set again</source>
        <translation>, und {} weitere fehlen und haben keinen brauchbaren Wert, bis sie neu gesetzt werden</translation>
    </message>
    <message>
        <source>0 seconds | 00/00 frames  </source>
        <translation>0 Sekunden | 00/00 Bilder  </translation>
    </message>
    <message>
        <source>0% Free</source>
        <translation>0% frei</translation>
    </message>
    <message>
        <source>1 File Copied Successfully.</source>
        <translation>1 Datei kopiert.</translation>
    </message>
    <message>
        <source>1 Frame</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>1 drawing</source>
        <translation>1 Zeichnung</translation>
    </message>
    <message>
        <source>1 file selected for download.</source>
        <translation>1 Datei gewählt.</translation>
    </message>
    <message>
        <source>1 file that the lists do not show: {}</source>
        <translation>1 Datei, die die Listen nicht zeigen: {}</translation>
    </message>
    <message>
        <source>1 lesson</source>
        <translation>1 Lektion</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>1 picture lost</source>
        <translation>1 Bild verloren</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 Pixel</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>1 setting in {} could not be read ({}), so its first value holds for this run</source>
        <translation>1 Einstellung in {} war nicht zu lesen ({}); ihr erster Wert gilt für diesen Lauf</translation>
    </message>
    <message>
        <source>1 to 1</source>
        <translation>1 zu 1</translation>
    </message>
    <message>
        <source>1 video left to import</source>
        <translation>Noch 1 Video zu importieren</translation>
    </message>
    <message>
        <source>1 video with all drawings and notes</source>
        <translation>1 Video mit allen Zeichnungen und Notizen</translation>
    </message>
    <message>
        <source>1080 lines</source>
        <translation>1080 Zeilen</translation>
    </message>
    <message>
        <source>1st DAY</source>
        <translation>1. TAG</translation>
    </message>
    <message>
        <source>1–4 pictures  ·  ↑ ↓ delay  ·  L loop  ·  Space still  ·  K keep  ·  F left-right  ·  F11 full screen</source>
        <translation>1–4 Bilder  ·  ↑ ↓ Verzögerung  ·  L Schleife  ·  Leertaste steht  ·  K behalten  ·  F links-rechts  ·  F11 ganzer Schirm</translation>
    </message>
    <message>
        <source>3rd DAY</source>
        <translation>3. TAG</translation>
    </message>
    <message>
        <source>720 lines</source>
        <translation>720 Zeilen</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; "{}" will not be on the page: {}</source>
        <translation>&gt;&gt;&gt; "{}" kommt nicht auf die Seite: {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Adding File {}</source>
        <translation>&gt;&gt;&gt; Datei {} kommt hinzu</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; BURN CANCELLED</source>
        <translation>&gt;&gt;&gt; BRENNEN ABGEBROCHEN</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; BURN CD FAILED {}</source>
        <translation>&gt;&gt;&gt; CD BRENNEN GESCHEITERT {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Burn Complete!</source>
        <translation>&gt;&gt;&gt; Gebrannt!</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Burn Failed {}</source>
        <translation>&gt;&gt;&gt; Brennen gescheitert {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; CD Burn Started</source>
        <translation>&gt;&gt;&gt; CD wird gebrannt</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; COPY CANCELLED</source>
        <translation>&gt;&gt;&gt; KOPIEREN ABGEBROCHEN</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Checking the disc</source>
        <translation>&gt;&gt;&gt; Die Disc wird geprüft</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copy Complete!</source>
        <translation>&gt;&gt;&gt; Kopiert!</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copy Failed {}</source>
        <translation>&gt;&gt;&gt; Kopieren gescheitert {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copying Started</source>
        <translation>&gt;&gt;&gt; Kopieren beginnt</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Making MP4 of {}</source>
        <translation>&gt;&gt;&gt; MP4 von {} entsteht</translation>
    </message>
    <message>
        <source>A clip is still being written. Do you want to give it up and close?</source>
        <translation>Ein Clip wird noch geschrieben. Möchten Sie ihn aufgeben und schließen?</translation>
    </message>
    <message>
        <source>A clip of this name is being written.</source>
        <translation>Ein Clip dieses Namens wird gerade geschrieben.</translation>
    </message>
    <message>
        <source>A connection to the ftp server could not be made.
{}</source>
        <translation>Eine Verbindung zum FTP-Server kam nicht zustande.
{}</translation>
    </message>
    <message>
        <source>A disc is still being written. Do you want to give it up and close?</source>
        <translation>Eine Disc wird noch geschrieben. Möchten Sie das aufgeben und schließen?</translation>
    </message>
    <message>
        <source>A disc, folder or stick that plays on any computer</source>
        <translation>Eine Disc, ein Ordner oder Stick, der auf jedem Rechner spielt</translation>
    </message>
    <message>
        <source>A few words</source>
        <translation>Ein paar Worte</translation>
    </message>
    <message>
        <source>A field that is renamed keeps its values.</source>
        <translation>Ein umbenanntes Feld behält seine Werte.</translation>
    </message>
    <message>
        <source>A file could not be read to its end.</source>
        <translation>Eine Datei war nicht bis zum Ende zu lesen.</translation>
    </message>
    <message>
        <source>A file that can be burnt, mounted or sent later.</source>
        <translation>Eine Datei, die später gebrannt, eingehängt oder verschickt werden kann.</translation>
    </message>
    <message>
        <source>A high definition camera stores its videos as files. Connect it to the computer, choose its folder, usually F:\DCIM\VIDEO or DCIM on its card, and Kinalyx converts the videos into the student's folder.</source>
        <translation>Eine HD-Kamera speichert ihre Videos als Dateien. Schließen Sie sie an den Rechner an, wählen Sie ihren Ordner, meist F:\DCIM\VIDEO oder DCIM auf ihrer Karte, und Kinalyx wandelt die Videos in den Ordner um, der gewählt ist.</translation>
    </message>
    <message>
        <source>A lesson was broken off: %1%2:%3 minutes, %4</source>
        <translation>Eine Lektion brach ab: %1%2:%3 Minuten, %4</translation>
    </message>
    <message>
        <source>A longer delay (Up; with Shift by 5 s)</source>
        <translation>Längere Verzögerung (Pfeil auf; mit Umschalt um 5 s)</translation>
    </message>
    <message>
        <source>A loop lasts half a minute at the most.</source>
        <translation>Eine Schleife dauert höchstens eine halbe Minute.</translation>
    </message>
    <message>
        <source>A loop lasts half a minute at the most. Choose a shorter stretch, or an MP4 video.</source>
        <translation>Eine Schleife dauert höchstens eine halbe Minute. Wählen Sie einen kürzeren Abschnitt oder ein MP4-Video.</translation>
    </message>
    <message>
        <source>A mail is being sent already.</source>
        <translation>Es wird schon eine Mail gesendet.</translation>
    </message>
    <message>
        <source>A name cannot be longer.</source>
        <translation>Ein Name darf nicht länger sein.</translation>
    </message>
    <message>
        <source>A name cannot begin with a dot.</source>
        <translation>Ein Name darf nicht mit einem Punkt beginnen.</translation>
    </message>
    <message>
        <source>A name cannot contain %1</source>
        <translation>Ein Name darf nicht %1 enthalten</translation>
    </message>
    <message>
        <source>A name cannot contain control characters.</source>
        <translation>Ein Name darf keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>A name cannot hold these: \ / : * ? " &lt; &gt; | ! @ # $ % ^ &amp; + = { } [ ] ~ ` ; '</source>
        <translation>Ein Name darf dies nicht enthalten: \ / : * ? " &lt; &gt; | ! @ # $ % ^ &amp; + = { } [ ] ~ ` ; '</translation>
    </message>
    <message>
        <source>A page that plays on telephones, and its link by mail</source>
        <translation>Eine Seite, die auf Telefonen spielt, und ihr Link per Mail</translation>
    </message>
    <message>
        <source>A part of the library for cameras is missing on this machine.</source>
        <translation>Auf diesem Rechner fehlt ein Teil der Kamerabibliothek.</translation>
    </message>
    <message>
        <source>A part of the library for videos is missing on this machine.</source>
        <translation>Auf diesem Rechner fehlt ein Teil der Videobibliothek.</translation>
    </message>
    <message>
        <source>A picture cannot be {} x {}.</source>
        <translation>Ein Bild kann nicht {} x {} sein.</translation>
    </message>
    <message>
        <source>A picture has not been sent by e-mail. Leaving the analysis section deletes it. Do you want to leave?</source>
        <translation>Ein Bild wurde nicht per E-Mail gesendet. Wer die Analyse verlässt, löscht es. Möchten Sie gehen?</translation>
    </message>
    <message>
        <source>A picture of an earlier session has not been sent. Do you want to delete it? If not, it comes before the new ones.</source>
        <translation>Ein Bild einer früheren Sitzung wurde nicht gesendet. Möchten Sie es löschen? Sonst kommt es vor den neuen.</translation>
    </message>
    <message>
        <source>A picture of any video of the student, at one of its marks</source>
        <translation>Ein Bild aus einem der Videos, an einer Marke</translation>
    </message>
    <message>
        <source>A picture takes longer than no time.</source>
        <translation>Ein Bild dauert länger als keine Zeit.</translation>
    </message>
    <message>
        <source>A quarter</source>
        <translation>Ein Viertel</translation>
    </message>
    <message>
        <source>A shorter delay (Down; with Shift by 5 s)</source>
        <translation>Kürzere Verzögerung (Pfeil ab; mit Umschalt um 5 s)</translation>
    </message>
    <message>
        <source>A sound that crosses this line fires. At the right end none does.</source>
        <translation>Ein Ton über dieser Linie löst aus. Am rechten Ende keiner.</translation>
    </message>
    <message>
        <source>A telephone on a tripod is a camera: start a camera app on it and type the address that it shows. A name may stand before it.</source>
        <translation>Ein Telefon auf dem Stativ ist eine Kamera: Starten Sie darauf eine Kamera-App und geben Sie die Adresse ein, die sie zeigt. Davor kann ein Name stehen.</translation>
    </message>
    <message>
        <source>A video from this database is open in the Analysis section. You must close the video before you can {}.</source>
        <translation>Ein Video dieser Datenbank ist in der Analyse geöffnet. Schließen Sie es, bevor Sie {} können.</translation>
    </message>
    <message>
        <source>A video in its window</source>
        <translation>Ein Video in seinem Fenster</translation>
    </message>
    <message>
        <source>A video with the name "{}" already exists in the folder named {}. Please rename the video and try again.</source>
        <translation>Ein Video mit dem Namen "{}" gibt es im Ordner {} schon. Bitte benennen Sie das Video um und versuchen Sie es wieder.</translation>
    </message>
    <message>
        <source>A window that shows the cameras some seconds ago</source>
        <translation>Ein Fenster, das die Kameras vor einigen Sekunden zeigt</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>ABORTING (BURN ERROR)</source>
        <translation>ABBRUCH (BRENNFEHLER)</translation>
    </message>
    <message>
        <source>ABORTING (USER)</source>
        <translation>ABBRUCH (BENUTZER)</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>ANSPRECHEN</translation>
    </message>
    <message>
        <source>AVI, for computers</source>
        <translation>AVI, für Rechner</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add %1 Videos</source>
        <translation>%1 Videos hinzufügen</translation>
    </message>
    <message>
        <source>Add 1 Video</source>
        <translation>1 Video hinzufügen</translation>
    </message>
    <message>
        <source>Add Email Address</source>
        <translation>E-Mail-Adresse ergänzen</translation>
    </message>
    <message>
        <source>Add Hot Zone</source>
        <translation>Neue Zone</translation>
    </message>
    <message>
        <source>Add Lesson</source>
        <translation>Lektion hinzufügen</translation>
    </message>
    <message>
        <source>Add New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Add New {}</source>
        <translation>{} hinzufügen</translation>
    </message>
    <message>
        <source>Add Picture - %1</source>
        <translation>Bild hinzufügen - %1</translation>
    </message>
    <message>
        <source>Add Picture...</source>
        <translation>Bild hinzufügen...</translation>
    </message>
    <message>
        <source>Add Video</source>
        <translation>Video hinzufügen</translation>
    </message>
    <message>
        <source>Add Videos</source>
        <translation>Videos hinzufügen</translation>
    </message>
    <message>
        <source>Add an instructor or database to the library</source>
        <translation>Einen Trainer oder eine Datenbank zur Bibliothek hinzufügen</translation>
    </message>
    <message>
        <source>Add new {} to the library.</source>
        <translation>{} neu in die Bibliothek aufnehmen.</translation>
    </message>
    <message>
        <source>Add the first instructor beneath the list on the left.</source>
        <translation>Fügen Sie unter der Liste links den ersten Trainer hinzu.</translation>
    </message>
    <message>
        <source>Add the first instructor on the page {}.</source>
        <translation>Fügen Sie auf der Seite {} den ersten Trainer hinzu.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address of network camera %1</source>
        <translation>Adresse der Netzwerkkamera %1</translation>
    </message>
    <message>
        <source>Address, Top, Impact, Finish</source>
        <translation>Ansprechen, Umkehrpunkt, Treffmoment, Ende</translation>
    </message>
    <message>
        <source>Adds the chosen lessons to the files to send (Enter)</source>
        <translation>Nimmt die gewählten Lektionen in die Sendeliste auf (Eingabetaste)</translation>
    </message>
    <message>
        <source>Adds the chosen videos to the files to send (Enter)</source>
        <translation>Nimmt die gewählten Videos in die Sendeliste auf (Eingabetaste)</translation>
    </message>
    <message>
        <source>Adjust Grid Size</source>
        <translation>Gittergröße einstellen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Advanced Strobe</source>
        <translation>Strobe mit Wahl</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>All 8 windows already have videos in them. Send to analysis failed.</source>
        <translation>Alle 8 Fenster haben schon Videos. Das Senden zur Analyse ist gescheitert.</translation>
    </message>
    <message>
        <source>All Back 1 Frame</source>
        <translation>Alle 1 Bild zurück</translation>
    </message>
    <message>
        <source>All Next Frame</source>
        <translation>Alle nächstes Bild</translation>
    </message>
    <message>
        <source>All Picture Files (*.bmp;*.jpg;*.gif;*.ico)|*.bmp; *.jpg; *.gif; *.ico</source>
        <translation>Alle Bilddateien (*.bmp;*.jpg;*.gif;*.ico)|*.bmp; *.jpg; *.gif; *.ico</translation>
    </message>
    <message>
        <source>All as it stands</source>
        <translation>Alles, wie es steht</translation>
    </message>
    <message>
        <source>All of them can be opened here. What is imported becomes Motion JPEG or DV.</source>
        <translation>Alle lassen sich hier öffnen. Importiertes wird Motion JPEG oder DV.</translation>
    </message>
    <message>
        <source>All videos of all %1 of this database are taken.</source>
        <translation>Alle Videos aller %1 dieser Datenbank werden genommen.</translation>
    </message>
    <message>
        <source>All windows as they stand</source>
        <translation>Alle Fenster, wie sie stehen</translation>
    </message>
    <message>
        <source>All {} drawings</source>
        <translation>Alle {} Zeichnungen</translation>
    </message>
    <message>
        <source>Also ftps://, ftpes:// or sftp:// and the server, with a folder behind it if you like</source>
        <translation>Auch ftps://, ftpes:// oder sftp:// und der Server, auf Wunsch mit einem Ordner dahinter</translation>
    </message>
    <message>
        <source>An eighth</source>
        <translation>Ein Achtel</translation>
    </message>
    <message>
        <source>An error has occurred while creating the profile</source>
        <translation>Beim Anlegen des Profils ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>An error has occurred while editing the profile</source>
        <translation>Beim Ändern des Profils ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>An image file has no tray.</source>
        <translation>Eine Abbilddatei hat kein Fach.</translation>
    </message>
    <message>
        <source>An unfinished recording was found: %1 s, %2</source>
        <translation>Eine unfertige Aufnahme wurde gefunden: %1 s, %2</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Analysis Notes</source>
        <translation>Notizen zur Analyse</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analysieren</translation>
    </message>
    <message>
        <source>Analyze Video - Page Down key</source>
        <translation>Bild ab - Video analysieren</translation>
    </message>
    <message>
        <source>Analyze Videos</source>
        <translation>Analysieren</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Another disc drive has not answered yet. Please try again later.</source>
        <translation>Ein anderes Disclaufwerk hat noch nicht geantwortet. Bitte versuchen Sie es später wieder.</translation>
    </message>
    <message>
        <source>Another field has the name "{}" already.</source>
        <translation>Ein anderes Feld heißt schon "{}".</translation>
    </message>
    <message>
        <source>Another operation is still at work. Please wait until it has finished.</source>
        <translation>Ein anderer Vorgang läuft noch. Bitte warten Sie, bis er fertig ist.</translation>
    </message>
    <message>
        <source>Another program is using the camera.</source>
        <translation>Ein anderes Programm benutzt die Kamera.</translation>
    </message>
    <message>
        <source>Another program is using the microphone.</source>
        <translation>Ein anderes Programm benutzt das Mikrofon.</translation>
    </message>
    <message>
        <source>Another program is using the screen.</source>
        <translation>Ein anderes Programm benutzt den Bildschirm.</translation>
    </message>
    <message>
        <source>Another window is at work on this lesson.</source>
        <translation>Ein anderes Fenster arbeitet an dieser Lektion.</translation>
    </message>
    <message>
        <source>Another window is sending videos. Wait until it has finished.</source>
        <translation>Ein anderes Fenster sendet gerade Videos. Warten Sie, bis es fertig ist.</translation>
    </message>
    <message>
        <source>Another window of Kinalyx, or an earlier session, has pictures for emailing as well, and there is no room for more. Send or delete some of them first.</source>
        <translation>Ein anderes Fenster von Kinalyx oder eine frühere Sitzung hat auch Bilder zum Senden, und für mehr ist kein Platz. Senden oder löschen Sie zuerst einige.</translation>
    </message>
    <message>
        <source>Another window or workstation is writing to the file of the macros. Try again.</source>
        <translation>Ein anderes Fenster oder ein anderer Arbeitsplatz schreibt gerade die Makrodatei. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Are you sure that you want to delete the current video from the Quick Launch folder?</source>
        <translation>Möchten Sie dieses Video wirklich aus dem Schnellstart-Ordner löschen?</translation>
    </message>
    <message>
        <source>Arriving</source>
        <translation>Kommt an</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>As filmed</source>
        <translation>Wie gefilmt</translation>
    </message>
    <message>
        <source>As seen here</source>
        <translation>Wie hier zu sehen</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>As the file says (%1)</source>
        <translation>Wie die Datei sagt (%1)</translation>
    </message>
    <message>
        <source>As the ruler has it</source>
        <translation>Wie das Lineal es hat</translation>
    </message>
    <message>
        <source>Asking the camera...</source>
        <translation>Die Kamera wird gefragt...</translation>
    </message>
    <message>
        <source>Asking the drive...</source>
        <translation>Das Laufwerk wird gefragt...</translation>
    </message>
    <message>
        <source>At the top of each picture</source>
        <translation>Oben in jedem Bild</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Automatic Import Active.... Waiting for new videos....</source>
        <translation>Autoimport läuft.... Neue Videos werden erwartet....</translation>
    </message>
    <message>
        <source>Automatic Import Folder</source>
        <translation>Automatischer Importordner</translation>
    </message>
    <message>
        <source>Automatic Naming ie: Video1 Video2 etc.</source>
        <translation>Automatische Namen: Video1, Video2 usw.</translation>
    </message>
    <message>
        <source>Available space on removeable disk {}</source>
        <translation>Freier Platz auf dem Wechseldatenträger {}</translation>
    </message>
    <message>
        <source>BACKGROUND FORMAT</source>
        <translation>FORMATIERUNG IM HINTERGRUND</translation>
    </message>
    <message>
        <source>BACKSWING</source>
        <translation>AUSHOLEN</translation>
    </message>
    <message>
        <source>BUNKER SHOT</source>
        <translation>BUNKERSCHLAG</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back one picture (Left Arrow); hold to go on</source>
        <translation>Ein Bild zurück (Pfeil links); halten geht weiter</translation>
    </message>
    <message>
        <source>Back to Live Video</source>
        <translation>Zurück zum Livebild</translation>
    </message>
    <message>
        <source>Back to the centre at full size (keypad 5)</source>
        <translation>Zurück zur Mitte in voller Größe (Ziffernblock 5)</translation>
    </message>
    <message>
        <source>Back to the logo that comes with Kinalyx</source>
        <translation>Zurück zum Logo, das mit Kinalyx kommt</translation>
    </message>
    <message>
        <source>Back to the picture that comes with Kinalyx</source>
        <translation>Zurück zum Bild, das mit Kinalyx kommt</translation>
    </message>
    <message>
        <source>Back to the windows (Esc)</source>
        <translation>Zurück zu den Fenstern (Esc)</translation>
    </message>
    <message>
        <source>Background Picture</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Tonstart</translation>
    </message>
    <message>
        <source>Beep Capture Complete. 1 video succesfully created.</source>
        <translation>Tonstart fertig. 1 Video angelegt.</translation>
    </message>
    <message>
        <source>Beep Capture Complete. {} videos succesfully created.</source>
        <translation>Tonstart fertig. {} Videos angelegt.</translation>
    </message>
    <message>
        <source>Beep Capture Stopped. Ready to Record.</source>
        <translation>Tonstart beendet. Bereit zur Aufnahme.</translation>
    </message>
    <message>
        <source>Beep of the hot zones (M)</source>
        <translation>Piepen der Zonen (M)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Davor</translation>
    </message>
    <message>
        <source>Before importing video from your camera, you must set up the camera video location in Program Setup. Click OK to go to Program Setup.</source>
        <translation>Ehe Sie Videos von Ihrer Kamera importieren, legen Sie deren Ordner in der Einrichtung fest. OK führt zur Einrichtung.</translation>
    </message>
    <message>
        <source>Before using the Auto Import feature, you must set up the Import Folder location in Program Setup. Click OK to go to Program Setup.</source>
        <translation>Ehe Sie den Autoimport benutzen, legen Sie den Importordner in der Einrichtung fest. OK führt zur Einrichtung.</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Beginning of the range</source>
        <translation>Anfang des Abschnitts</translation>
    </message>
    <message>
        <source>Begins with an empty box</source>
        <translation>Beginnt mit einem leeren Feld</translation>
    </message>
    <message>
        <source>Black Blue</source>
        <translation>Schwarz-Blau</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue White</source>
        <translation>Blau-Weiß</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Both Videos Saved Successfully</source>
        <translation>Beide Videos gespeichert</translation>
    </message>
    <message>
        <source>Both videos, half and half</source>
        <translation>Beide Videos, halb und halb</translation>
    </message>
    <message>
        <source>Bring It Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>Brings back what was closed last (Ctrl+Shift+T)</source>
        <translation>Holt zurück, was zuletzt geschlossen wurde (Strg+Umschalt+T)</translation>
    </message>
    <message>
        <source>Brings out the edges of what is made tape a little</source>
        <translation>Hebt die Kanten dessen, was Band wird, ein wenig hervor</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Browse for media file</source>
        <translation>Mediendatei wählen</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Suchen...</translation>
    </message>
    <message>
        <source>Burn Cancelled</source>
        <translation>Brennen abgebrochen</translation>
    </message>
    <message>
        <source>Burn Completed Successfully!</source>
        <translation>Brennen abgeschlossen!</translation>
    </message>
    <message>
        <source>Burn Failed</source>
        <translation>Brennen gescheitert</translation>
    </message>
    <message>
        <source>Burn Lessons and Videos to CD</source>
        <translation>Lektionen und Videos auf CD brennen</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Nach Datum</translation>
    </message>
    <message>
        <source>By Length</source>
        <translation>Nach Länge</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>By what the videos are sorted</source>
        <translation>Wonach die Videos sortiert sind</translation>
    </message>
    <message>
        <source>Bytes per Second: {}</source>
        <translation>Bytes je Sekunde: {}</translation>
    </message>
    <message>
        <source>C - Close Current Video</source>
        <translation>C - Dieses Video schließen</translation>
    </message>
    <message>
        <source>CD Drive Ejected</source>
        <translation>CD-Laufwerk geöffnet</translation>
    </message>
    <message>
        <source>CD or stick</source>
        <translation>CD oder Stick</translation>
    </message>
    <message>
        <source>CD/DVD Burner [%1]</source>
        <translation>CD/DVD-Brenner [%1]</translation>
    </message>
    <message>
        <source>CHECKING</source>
        <translation>PRÜFT</translation>
    </message>
    <message>
        <source>CHIP SHOT</source>
        <translation>CHIP</translation>
    </message>
    <message>
        <source>CLOSING TRACK</source>
        <translation>SPUR WIRD GESCHLOSSEN</translation>
    </message>
    <message>
        <source>Calculate Distance for Lines</source>
        <translation>Länge der Linien messen</translation>
    </message>
    <message>
        <source>Calibrate Ruler</source>
        <translation>Lineal eichen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Camera %1 could not be found. Connect Camera %1 to your computer and select "Retry" to connect it, or choose "Close" to ignore this message and continue.</source>
        <translation>Kamera %1 war nicht zu finden. Schließen Sie Kamera %1 an und wählen Sie "Noch einmal", oder machen Sie mit "Schließen" ohne sie weiter.</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Kamera 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Kamera 2</translation>
    </message>
    <message>
        <source>Camera 2 Name Extension</source>
        <translation>Namenszusatz der Kamera 2</translation>
    </message>
    <message>
        <source>Camera {} recorded nothing.{}{}</source>
        <translation>Kamera {} hat nichts aufgenommen.{}{}</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Cameras on the Network</source>
        <translation>Kameras im Netzwerk</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel Zone</source>
        <translation>Zone abbrechen</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Cancelled. The mail may have gone already. The pictures stay in the queue.</source>
        <translation>Abgebrochen. Die Mail ist vielleicht schon unterwegs. Die Bilder bleiben in der Warteschlange.</translation>
    </message>
    <message>
        <source>Cancelled. The pictures stay in the queue.</source>
        <translation>Abgebrochen. Die Bilder bleiben in der Warteschlange.</translation>
    </message>
    <message>
        <source>Cancelling the burning process</source>
        <translation>Das Brennen wird abgebrochen</translation>
    </message>
    <message>
        <source>Cancelling the copy</source>
        <translation>Das Kopieren wird abgebrochen</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>Cannot be opened</source>
        <translation>Lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Cannot connect to the Internet

{}</source>
        <translation>Keine Verbindung zum Internet

{}</translation>
    </message>
    <message>
        <source>Cannot find Camera %1</source>
        <translation>Kamera %1 nicht gefunden</translation>
    </message>
    <message>
        <source>Cannot find directories.</source>
        <translation>Keine Ordner gefunden.</translation>
    </message>
    <message>
        <source>Cannot find directories. Please try again.</source>
        <translation>Keine Ordner gefunden. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Cannot find files.</source>
        <translation>Keine Dateien gefunden.</translation>
    </message>
    <message>
        <source>Cannot find files. Please try again.</source>
        <translation>Keine Dateien gefunden. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Capture Interrupted, Ready for Capture.</source>
        <translation>Aufnahme unterbrochen, bereit zur Aufnahme.</translation>
    </message>
    <message>
        <source>Capture Method</source>
        <translation>Art der Aufnahme</translation>
    </message>
    <message>
        <source>Capture Setup</source>
        <translation>Aufnahme einrichten</translation>
    </message>
    <message>
        <source>Capture Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Capture Video - Page Up key</source>
        <translation>Bild auf - Video aufnehmen</translation>
    </message>
    <message>
        <source>Capture Videos</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Capture setup: kinds of cameras, naming, default cameras, cameras on the network</source>
        <translation>Aufnahme einrichten: Arten von Kameras, Namen, Standardkameras, Kameras im Netzwerk</translation>
    </message>
    <message>
        <source>Capture the Swing</source>
        <translation>Schwung aufnehmen</translation>
    </message>
    <message>
        <source>Captures in cycle</source>
        <translation>Aufnahmen im Zyklus</translation>
    </message>
    <message>
        <source>Capturing Video</source>
        <translation>Video wird aufgenommen</translation>
    </message>
    <message>
        <source>Capturing Video. Press button again to STOP capture</source>
        <translation>Video wird aufgenommen. Der Knopf beendet die AUFNAHME</translation>
    </message>
    <message>
        <source>Carve new MultiPicture</source>
        <translation>Neuer Ausschnitt</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change %1 Color</source>
        <translation>Farbe ändern: %1</translation>
    </message>
    <message>
        <source>Change Text...</source>
        <translation>Text ändern...</translation>
    </message>
    <message>
        <source>Change left and right, as in a mirror (F)</source>
        <translation>Links und rechts vertauschen wie im Spiegel (F)</translation>
    </message>
    <message>
        <source>Change the picture or move the heading</source>
        <translation>Bild wechseln oder Überschrift verschieben</translation>
    </message>
    <message>
        <source>Change the size: drag up or down from here</source>
        <translation>Größe: von hier auf oder ab ziehen</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates sehen</translation>
    </message>
    <message>
        <source>Check the disc after burning</source>
        <translation>Die Disc nach dem Brennen prüfen</translation>
    </message>
    <message>
        <source>Checking web for current content</source>
        <translation>Was die Seite schon zeigt, wird geprüft</translation>
    </message>
    <message>
        <source>Choose Logo</source>
        <translation>Logo wählen</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Choose a database first.</source>
        <translation>Wählen Sie zuerst eine Datenbank.</translation>
    </message>
    <message>
        <source>Choose a drive or folder</source>
        <translation>Laufwerk oder Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a drive or folder first.</source>
        <translation>Wählen Sie zuerst ein Laufwerk oder einen Ordner.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>Choose a model to see the videos.</source>
        <translation>Wählen Sie ein Modell, um die Videos zu sehen.</translation>
    </message>
    <message>
        <source>Choose a video to look at it, and to mark the part that you want.</source>
        <translation>Wählen Sie ein Video, um es anzusehen und den gewünschten Teil zu markieren.</translation>
    </message>
    <message>
        <source>Choose a {} to see the videos.</source>
        <translation>Wählen Sie {}, um die Videos zu sehen.</translation>
    </message>
    <message>
        <source>Choose a {}, or take the whole database.</source>
        <translation>Wählen Sie {}, oder nehmen Sie die ganze Datenbank.</translation>
    </message>
    <message>
        <source>Choose an instructor to see the {}.</source>
        <translation>Wählen Sie einen Trainer, dann erscheint die Liste ({}).</translation>
    </message>
    <message>
        <source>Choose any folder</source>
        <translation>Einen beliebigen Ordner wählen</translation>
    </message>
    <message>
        <source>Choose the Camera</source>
        <translation>Kamera wählen</translation>
    </message>
    <message>
        <source>Choose the folder from which videos come</source>
        <translation>Den Ordner wählen, aus dem die Videos kommen</translation>
    </message>
    <message>
        <source>Choose the folder of your camera in Program Setup first.</source>
        <translation>Wählen Sie zuerst in der Einrichtung den Ordner Ihrer Kamera.</translation>
    </message>
    <message>
        <source>Choose the folder to be watched in Program Setup first.</source>
        <translation>Wählen Sie zuerst in der Einrichtung den zu beobachtenden Ordner.</translation>
    </message>
    <message>
        <source>Choose to Save New Video.</source>
        <translation>Speichern Sie das neue Video.</translation>
    </message>
    <message>
        <source>Choose videos on this computer, a telephone or a card. They can also be dropped on the list.</source>
        <translation>Wählen Sie Videos auf diesem Rechner, einem Telefon oder einer Karte. Sie lassen sich auch auf die Liste ziehen.</translation>
    </message>
    <message>
        <source>Choose who it is for</source>
        <translation>Wählen Sie, für wen es ist</translation>
    </message>
    <message>
        <source>Choose whose lesson it is.</source>
        <translation>Wählen Sie, wessen Lektion es ist.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>City, State, Zip</source>
        <translation>PLZ, Ort, Land</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Classic window in the middle</source>
        <translation>Klassisches Fenster in der Mitte</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Click Save Video to continue..</source>
        <translation>Klicken Sie auf Video speichern..</translation>
    </message>
    <message>
        <source>Click a drawing</source>
        <translation>Zeichnung anklicken</translation>
    </message>
    <message>
        <source>Click on "Save Capture" to save</source>
        <translation>"Aufnahme speichern" speichert</translation>
    </message>
    <message>
        <source>Click the Delete Video button to finish.</source>
        <translation>Klicken Sie zum Abschluss auf "Video löschen".</translation>
    </message>
    <message>
        <source>Click the Delete Videos button to finish.</source>
        <translation>Klicken Sie zum Abschluss auf "Videos löschen".</translation>
    </message>
    <message>
        <source>Click the Delete {} button to finish.</source>
        <translation>Klicken Sie zum Abschluss auf "{} löschen".</translation>
    </message>
    <message>
        <source>Click the link below to view your video lesson.</source>
        <translation>Der Link unten führt zu Ihrer Videolektion.</translation>
    </message>
    <message>
        <source>Click the picture or the button at the end of the swing, or press the space bar. A remote control for presentations can do it too:</source>
        <translation>Klicken Sie am Ende des Schwungs auf das Bild oder den Knopf, oder drücken Sie die Leertaste. Auch eine Fernbedienung für Vorträge kann das:</translation>
    </message>
    <message>
        <source>Click to Start Auto Import</source>
        <translation>Klicken startet den Autoimport</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Clock Grid</source>
        <translation>Uhrgitter</translation>
    </message>
    <message>
        <source>Clone Drawings</source>
        <translation>Zeichnungen kopieren</translation>
    </message>
    <message>
        <source>Clone Drawings to another Window</source>
        <translation>Zeichnungen in ein anderes Fenster kopieren</translation>
    </message>
    <message>
        <source>Clone all drawings to another window. Select the window to copy to and click 'OK'</source>
        <translation>Alle Zeichnungen in ein anderes Fenster kopieren. Wählen Sie das Fenster und klicken Sie auf 'OK'</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close "{}" all the same? Its new drawings and notes will be lost. Answer No to keep it open.</source>
        <translation>"{}" trotzdem schließen? Neue Zeichnungen und Notizen gehen verloren. Mit Nein bleibt es offen.</translation>
    </message>
    <message>
        <source>Close All Videos</source>
        <translation>Alle Videos schließen</translation>
    </message>
    <message>
        <source>Close Current Video</source>
        <translation>Dieses Video schließen</translation>
    </message>
    <message>
        <source>Close Kinalyx</source>
        <translation>Kinalyx schließen</translation>
    </message>
    <message>
        <source>Close MultiPicture</source>
        <translation>Mehrbild schließen</translation>
    </message>
    <message>
        <source>Close and Continue</source>
        <translation>Schließen und weiter</translation>
    </message>
    <message>
        <source>Close the mirror (Esc)</source>
        <translation>Spiegel schließen (Esc)</translation>
    </message>
    <message>
        <source>Close the notes</source>
        <translation>Notizen schließen</translation>
    </message>
    <message>
        <source>Close the second row</source>
        <translation>Zweite Reihe schließen</translation>
    </message>
    <message>
        <source>Close without Printing</source>
        <translation>Schließen ohne zu drucken</translation>
    </message>
    <message>
        <source>Closing card with your heading</source>
        <translation>Schlusskarte mit Ihrer Überschrift</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Colors of the Drawing Tools</source>
        <translation>Farben der Zeichenwerkzeuge</translation>
    </message>
    <message>
        <source>Columns of the grid over the picture</source>
        <translation>Spalten des Gitters über dem Bild</translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation>Firmenname</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Connect the camera, and its videos appear here.

%1</source>
        <translation>Schließen Sie die Kamera an, dann erscheinen ihre Videos hier.

%1</translation>
    </message>
    <message>
        <source>Connected. Getting Video List.</source>
        <translation>Verbunden. Die Liste wird geholt.</translation>
    </message>
    <message>
        <source>Connecting to Email Server</source>
        <translation>Verbindung zum Mailserver</translation>
    </message>
    <message>
        <source>Connecting to ftp server...</source>
        <translation>Verbindung zum FTP-Server...</translation>
    </message>
    <message>
        <source>Connecting to the Internet...Please wait.</source>
        <translation>Verbindung zum Internet...Bitte warten.</translation>
    </message>
    <message>
        <source>Connection to SMTP server not closed cleanly.</source>
        <translation>Verbindung zum SMTP-Server nicht sauber beendet.</translation>
    </message>
    <message>
        <source>Connection to ftp server successful.</source>
        <translation>Die Verbindung zum FTP-Server gelingt.</translation>
    </message>
    <message>
        <source>Conversion and emailing complete</source>
        <translation>Umgewandelt und gemailt</translation>
    </message>
    <message>
        <source>Conversion, uploading, and emailing complete</source>
        <translation>Umgewandelt, hochgeladen und gemailt</translation>
    </message>
    <message>
        <source>Converting video {} of {}</source>
        <translation>Video {} von {} wird umgewandelt</translation>
    </message>
    <message>
        <source>Converts all that waits, one after the other, each under the next name</source>
        <translation>Wandelt alles Wartende um, eines nach dem anderen, jedes unter dem nächsten Namen</translation>
    </message>
    <message>
        <source>Converts every video that arrives in the watched folder, one after the other</source>
        <translation>Wandelt jedes Video um, das im beobachteten Ordner ankommt, eines nach dem anderen</translation>
    </message>
    <message>
        <source>Copied. You can take the stick out now.</source>
        <translation>Kopiert. Sie können den Stick jetzt abziehen.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Copies the video {} with its drawings and notes. Select the removeable disk, or any other folder.</source>
        <translation>Kopiert das Video {} mit seinen Zeichnungen und Notizen. Wählen Sie den Wechseldatenträger oder einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Copies the {} videos with their drawings and notes. Select the removeable disk, or any other folder.</source>
        <translation>Kopiert die {} Videos mit ihren Zeichnungen und Notizen. Wählen Sie den Wechseldatenträger oder einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Copies videos from this computer, a telephone or a card to the student. They can also be dropped here.</source>
        <translation>Kopiert Videos von diesem Rechner, einem Telefon oder einer Karte hierher. Sie lassen sich auch hierher ziehen.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Cancelled</source>
        <translation>Kopieren abgebrochen</translation>
    </message>
    <message>
        <source>Copy Failed</source>
        <translation>Kopieren gescheitert</translation>
    </message>
    <message>
        <source>Copy Picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Copy Video to a Disk</source>
        <translation>Video auf Datenträger kopieren</translation>
    </message>
    <message>
        <source>Copy Videos to a Disk</source>
        <translation>Videos auf Datenträger kopieren</translation>
    </message>
    <message>
        <source>Copy the current video to a removeable disk.</source>
        <translation>Dieses Video auf einen Wechseldatenträger kopieren.</translation>
    </message>
    <message>
        <source>Copy the current video to the Quick Launch folder.</source>
        <translation>Dieses Video in den Schnellstart-Ordner kopieren.</translation>
    </message>
    <message>
        <source>Copy the selected videos of the drive into this library</source>
        <translation>Die gewählten Videos des Laufwerks in diese Bibliothek kopieren</translation>
    </message>
    <message>
        <source>Copy the selected videos of this library to the drive</source>
        <translation>Die gewählten Videos dieser Bibliothek auf das Laufwerk kopieren</translation>
    </message>
    <message>
        <source>Copy the {} selected videos to a removeable disk.</source>
        <translation>Die {} gewählten Videos auf einen Wechseldatenträger kopieren.</translation>
    </message>
    <message>
        <source>Copy to Folder [%1]</source>
        <translation>In Ordner kopieren [%1]</translation>
    </message>
    <message>
        <source>Copy to a Folder or Stick</source>
        <translation>In Ordner oder auf Stick kopieren</translation>
    </message>
    <message>
        <source>Copy to a folder or stick...</source>
        <translation>In Ordner oder auf Stick kopieren...</translation>
    </message>
    <message>
        <source>Copy video to Quick Launch Folder</source>
        <translation>Video in den Schnellstart-Ordner kopieren</translation>
    </message>
    <message>
        <source>Copying Videos, Please Wait.....</source>
        <translation>Videos werden kopiert, bitte warten.....</translation>
    </message>
    <message>
        <source>Copying to %1</source>
        <translation>Kopiert wird nach %1</translation>
    </message>
    <message>
        <source>Create CD</source>
        <translation>CD erstellen</translation>
    </message>
    <message>
        <source>Create Model</source>
        <translation>Modell anlegen</translation>
    </message>
    <message>
        <source>Create Now</source>
        <translation>Jetzt erstellen</translation>
    </message>
    <message>
        <source>Create a new Video Web Page</source>
        <translation>Eine neue Webseite mit Videos erstellen</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Ctrl and Shift with a click choose several, Ctrl+A all</source>
        <translation>Strg oder Umschalt mit Klick wählt mehrere, Strg+A alle</translation>
    </message>
    <message>
        <source>Ctrl and Shift with a click choose several; they can be dragged to a window</source>
        <translation>Strg und Umschalt mit Klick wählen mehrere; sie lassen sich auf ein Fenster ziehen</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Strg+S</translation>
    </message>
    <message>
        <source>Current Injuries</source>
        <translation>Jetzige Verletzungen</translation>
    </message>
    <message>
        <source>Current video was sent to Analysis.</source>
        <translation>Dieses Video wurde zur Analyse gesendet.</translation>
    </message>
    <message>
        <source>Currently Importing {} to filename {}</source>
        <translation>{} wird importiert, Dateiname {}</translation>
    </message>
    <message>
        <source>Cut Another Part</source>
        <translation>Anderen Teil ausschneiden</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>DISTANCE WEDGE</source>
        <translation>WEITSCHLAG</translation>
    </message>
    <message>
        <source>DV Camcorder</source>
        <translation>DV-Camcorder</translation>
    </message>
    <message>
        <source>Dark Brown</source>
        <translation>Dunkelbraun</translation>
    </message>
    <message>
        <source>Dark Room</source>
        <translation>Dunkler Raum</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark outline around drawings</source>
        <translation>Dunkler Rand um Zeichnungen</translation>
    </message>
    <message>
        <source>Dark: the film is the only color</source>
        <translation>Dunkel: nur der Film hat Farbe</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Datenbanken</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Default Camera {}</source>
        <translation>Standardkamera {}</translation>
    </message>
    <message>
        <source>Default Camera {} not selected</source>
        <translation>Standardkamera {} nicht gewählt</translation>
    </message>
    <message>
        <source>Default Logo</source>
        <translation>Standardlogo</translation>
    </message>
    <message>
        <source>Default Picture</source>
        <translation>Standardbild</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Delayed Mirror</source>
        <translation>Spiegel</translation>
    </message>
    <message>
        <source>Delayed Mirror - Kinalyx</source>
        <translation>Verzögerter Spiegel - Kinalyx</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete	Del</source>
        <translation>Löschen	Entf</translation>
    </message>
    <message>
        <source>Delete All Drawings</source>
        <translation>Alle Zeichnungen löschen</translation>
    </message>
    <message>
        <source>Delete All Drawings in Window</source>
        <translation>Alle Zeichnungen im Fenster löschen</translation>
    </message>
    <message>
        <source>Delete All and Close</source>
        <translation>Alle löschen und schließen</translation>
    </message>
    <message>
        <source>Delete Bad Video</source>
        <translation>Schadhaftes Video löschen</translation>
    </message>
    <message>
        <source>Delete Instructor or Database</source>
        <translation>Trainer oder Datenbank löschen</translation>
    </message>
    <message>
        <source>Delete Last Object Drawn</source>
        <translation>Letzte Zeichnung löschen</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Bild löschen</translation>
    </message>
    <message>
        <source>Delete Video</source>
        <translation>Video löschen</translation>
    </message>
    <message>
        <source>Delete Videos</source>
        <translation>Videos löschen</translation>
    </message>
    <message>
        <source>Delete the current instructor or database, which must be empty</source>
        <translation>Trainer oder Datenbank löschen; darin darf nichts mehr sein</translation>
    </message>
    <message>
        <source>Delete the current video.</source>
        <translation>Dieses Video löschen.</translation>
    </message>
    <message>
        <source>Delete the current {} database, profile, and all videos.</source>
        <translation>{} mit Datenbank, Profil und allen Videos löschen.</translation>
    </message>
    <message>
        <source>Delete the selected drawing (Delete)</source>
        <translation>Gewählte Zeichnung löschen (Entf)</translation>
    </message>
    <message>
        <source>Delete the {} selected videos.</source>
        <translation>Die {} gewählten Videos löschen.</translation>
    </message>
    <message>
        <source>Delete these {} videos</source>
        <translation>Diese {} Videos löschen</translation>
    </message>
    <message>
        <source>Delete this video: {}</source>
        <translation>Dieses Video löschen: {}</translation>
    </message>
    <message>
        <source>Delete this {}</source>
        <translation>{} löschen</translation>
    </message>
    <message>
        <source>Delete {}</source>
        <translation>{} löschen</translation>
    </message>
    <message>
        <source>Deleting temporary videos...</source>
        <translation>Zwischendateien werden gelöscht...</translation>
    </message>
    <message>
        <source>Detailed</source>
        <translation>Ausführlich</translation>
    </message>
    <message>
        <source>Details Off</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>Disc drive</source>
        <translation>Disclaufwerk</translation>
    </message>
    <message>
        <source>Disc image (*.iso)|*.iso</source>
        <translation>Disc-Abbild (*.iso)|*.iso</translation>
    </message>
    <message>
        <source>Disk Full or Not Available</source>
        <translation>Datenträger voll oder nicht da</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Nicht warten</translation>
    </message>
    <message>
        <source>Do you want to delete all {} pictures without sending?</source>
        <translation>Möchten Sie alle {} Bilder löschen, ohne sie zu senden?</translation>
    </message>
    <message>
        <source>Do you want to delete the picture without sending?</source>
        <translation>Möchten Sie das Bild löschen, ohne es zu senden?</translation>
    </message>
    <message>
        <source>Do you want to throw the unfinished lesson away?</source>
        <translation>Möchten Sie die unfertige Lektion wegwerfen?</translation>
    </message>
    <message>
        <source>Do you want to throw the unfinished recording away?</source>
        <translation>Möchten Sie die unfertige Aufnahme wegwerfen?</translation>
    </message>
    <message>
        <source>Do you want to throw this lesson away?</source>
        <translation>Möchten Sie diese Lektion wegwerfen?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done (Esc)</source>
        <translation>Fertig (Esc)</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Zwei</translation>
    </message>
    <message>
        <source>Double Screen</source>
        <translation>Zwei Fenster</translation>
    </message>
    <message>
        <source>Double Screen, one over the other</source>
        <translation>Zwei Fenster übereinander</translation>
    </message>
    <message>
        <source>Double click or press %1 to open a video</source>
        <translation>Doppelklick oder Taste %1 öffnet ein Video</translation>
    </message>
    <message>
        <source>Double {Horizontal}</source>
        <translation>Zwei {übereinander}</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Down Arrow - Play</source>
        <translation>Pfeil ab - Abspielen</translation>
    </message>
    <message>
        <source>Down the Line</source>
        <translation>Von hinten</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Holen</translation>
    </message>
    <message>
        <source>Download Cancelled</source>
        <translation>Herunterladen abgebrochen</translation>
    </message>
    <message>
        <source>Download Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Download Complete. 1 was in your library already.</source>
        <translation>Fertig. 1 war schon in Ihrer Bibliothek.</translation>
    </message>
    <message>
        <source>Download Complete. {} were in your library already.</source>
        <translation>Fertig. {} waren schon in Ihrer Bibliothek.</translation>
    </message>
    <message>
        <source>Download Model Videos</source>
        <translation>Modellvideos holen</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Wird geholt</translation>
    </message>
    <message>
        <source>Drag a rectangle over the picture</source>
        <translation>Ziehen Sie ein Rechteck über das Bild</translation>
    </message>
    <message>
        <source>Drag a rectangle over the picture: it beeps when something moves in it (Z)</source>
        <translation>Ziehen Sie ein Rechteck über das Bild: Es piept, wenn sich darin etwas bewegt (Z)</translation>
    </message>
    <message>
        <source>Drag the mouse over the part of the video that you want to cut out.</source>
        <translation>Ziehen Sie die Maus über den Teil des Videos, den Sie ausschneiden möchten.</translation>
    </message>
    <message>
        <source>Drag the piece to where you want it</source>
        <translation>Ziehen Sie den Ausschnitt, wohin Sie wollen</translation>
    </message>
    <message>
        <source>Drag the piece to where you want it.</source>
        <translation>Ziehen Sie den Ausschnitt, wohin Sie wollen.</translation>
    </message>
    <message>
        <source>Drag the two ends. Arrow keys step, I starts and O ends here, P plays.</source>
        <translation>Ziehen Sie die beiden Enden. Pfeiltasten gehen bildweise, I beginnt und O endet hier, P spielt.</translation>
    </message>
    <message>
        <source>Drag the two ends. Arrow keys step, S starts and E ends here, Space plays.</source>
        <translation>Ziehen Sie die beiden Enden. Pfeiltasten gehen bildweise, S beginnt und E endet hier, die Leertaste spielt.</translation>
    </message>
    <message>
        <source>Drag to change the size</source>
        <translation>Ziehen ändert die Größe</translation>
    </message>
    <message>
        <source>Drag to move the drawing</source>
        <translation>Ziehen bewegt die Zeichnung</translation>
    </message>
    <message>
        <source>Drag to turn the drawing</source>
        <translation>Ziehen dreht die Zeichnung</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Draw Circle from Center</source>
        <translation>Kreis um Mittelpunkt</translation>
    </message>
    <message>
        <source>Draw Straight Arrow</source>
        <translation>Geraden Pfeil zeichnen</translation>
    </message>
    <message>
        <source>Draw Straight Line</source>
        <translation>Gerade Linie zeichnen</translation>
    </message>
    <message>
        <source>Draw Text</source>
        <translation>Text schreiben</translation>
    </message>
    <message>
        <source>Draw a line along something whose length you know, then type that length.</source>
        <translation>Ziehen Sie eine Linie an etwas, dessen Länge Sie kennen, und geben Sie diese Länge ein.</translation>
    </message>
    <message>
        <source>Draw a line first</source>
        <translation>Ziehen Sie zuerst eine Linie</translation>
    </message>
    <message>
        <source>Draw a square round what the pictures shall show</source>
        <translation>Ziehen Sie ein Rechteck um das, was die Bilder zeigen sollen</translation>
    </message>
    <message>
        <source>Draw in this color: %1</source>
        <translation>In dieser Farbe zeichnen: %1</translation>
    </message>
    <message>
        <source>Draw something first</source>
        <translation>Zeichnen Sie zuerst etwas</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Drawing macros</source>
        <translation>Zeichenmakros</translation>
    </message>
    <message>
        <source>Drawing {} in Color</source>
        <translation>Gezeichnet wird {} in Farbe</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Zeichnungen</translation>
    </message>
    <message>
        <source>Drawings not saved</source>
        <translation>Zeichnungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Drive Error</source>
        <translation>Laufwerksfehler</translation>
    </message>
    <message>
        <source>Drive Not Ready</source>
        <translation>Laufwerk nicht bereit</translation>
    </message>
    <message>
        <source>Drive Status</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Drive is NOT Ready</source>
        <translation>Laufwerk NICHT bereit</translation>
    </message>
    <message>
        <source>Drive is Ready</source>
        <translation>Laufwerk bereit</translation>
    </message>
    <message>
        <source>Drive is not ready...Insert a CD and test again.{}</source>
        <translation>Das Laufwerk ist nicht bereit...Legen Sie eine CD ein und prüfen Sie wieder.{}</translation>
    </message>
    <message>
        <source>Drive is ready</source>
        <translation>Das Laufwerk ist bereit</translation>
    </message>
    <message>
        <source>Drive or Folder</source>
        <translation>Laufwerk oder Ordner</translation>
    </message>
    <message>
        <source>Drive or folder</source>
        <translation>Laufwerk oder Ordner</translation>
    </message>
    <message>
        <source>Driver, vault, squat ...</source>
        <translation>Abschlag, Sprung, Kniebeuge ...</translation>
    </message>
    <message>
        <source>Drop the videos on the name of a %1.</source>
        <translation>Lassen Sie die Videos auf einem Namen los (%1).</translation>
    </message>
    <message>
        <source>Drop to add the files to the Files to Send list.</source>
        <translation>Loslassen nimmt die Dateien in die Sendeliste auf.</translation>
    </message>
    <message>
        <source>Drop to copy the videos to %1.</source>
        <translation>Loslassen kopiert die Videos zu %1.</translation>
    </message>
    <message>
        <source>Drop videos here, or choose Browse.</source>
        <translation>Ziehen Sie Videos hierher, oder wählen Sie Suchen.</translation>
    </message>
    <message>
        <source>Duplicate	Ctrl+D</source>
        <translation>Verdoppeln	Strg+D</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>E-Mail Addresses</source>
        <translation>E-Mail-Adressen</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>ERASING</source>
        <translation>LÖSCHT</translation>
    </message>
    <message>
        <source>Each file goes in a mail of its own</source>
        <translation>Jede Datei geht in einer eigenen Mail</translation>
    </message>
    <message>
        <source>Each tool has its own color</source>
        <translation>Jedes Werkzeug hat seine Farbe</translation>
    </message>
    <message>
        <source>Each video as MP4 with its drawings, and index.html. It takes a while.</source>
        <translation>Jedes Video als MP4 mit seinen Zeichnungen, und index.html. Das dauert etwas.</translation>
    </message>
    <message>
        <source>Each video has a ruler of its own</source>
        <translation>Jedes Video hat sein eigenes Maß</translation>
    </message>
    <message>
        <source>Earlier in the report</source>
        <translation>Weiter vorn im Bericht</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit Bar: Size and Turn</source>
        <translation>Änderungsleiste: Größe und Drehung</translation>
    </message>
    <message>
        <source>Edit Drawings</source>
        <translation>Zeichnungen ändern</translation>
    </message>
    <message>
        <source>Edit all drawings of the window as one</source>
        <translation>Alle Zeichnungen des Fensters als eine ändern</translation>
    </message>
    <message>
        <source>Edit the fields of the %1 and choose "Save" to modify.</source>
        <translation>Ändern Sie die Felder (%1) und wählen Sie "Speichern".</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Acht</translation>
    </message>
    <message>
        <source>Eight Windows</source>
        <translation>Acht Fenster</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Email %1</source>
        <translation>Mail an %1</translation>
    </message>
    <message>
        <source>Email address of %1</source>
        <translation>E-Mail-Adresse von %1</translation>
    </message>
    <message>
        <source>Email- Send SnapShots</source>
        <translation>E-Mail: Bilder senden</translation>
    </message>
    <message>
        <source>Email- Take SnapShot</source>
        <translation>E-Mail: Bild aufnehmen</translation>
    </message>
    <message>
        <source>Empty: as a guest</source>
        <translation>Leer: als Gast</translation>
    </message>
    <message>
        <source>Encrypted after the greeting (TLS)</source>
        <translation>Nach der Begrüßung verschlüsselt (TLS)</translation>
    </message>
    <message>
        <source>Encrypted from the start (SSL)</source>
        <translation>Von Anfang an verschlüsselt (SSL)</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Hier enden</translation>
    </message>
    <message>
        <source>End at %1</source>
        <translation>Ende bei %1</translation>
    </message>
    <message>
        <source>End at {}</source>
        <translation>Ende bei {}</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>Ende des Abschnitts</translation>
    </message>
    <message>
        <source>End time %1</source>
        <translation>Ende bei %1</translation>
    </message>
    <message>
        <source>Enter Your Company Name Here</source>
        <translation>Geben Sie hier Ihre Firma ein</translation>
    </message>
    <message>
        <source>Enter Your Name Here</source>
        <translation>Geben Sie hier Ihren Namen ein</translation>
    </message>
    <message>
        <source>Enter the web address and the FTP address of your web space in Program Setup first.</source>
        <translation>Geben Sie zuerst in der Einrichtung die Webadresse und die FTP-Adresse Ihres Webspace ein.</translation>
    </message>
    <message>
        <source>Erase the Disc?</source>
        <translation>Die Disc löschen?</translation>
    </message>
    <message>
        <source>Error sending email. Check your email settings in the Program Setup section.</source>
        <translation>Die Mail ließ sich nicht senden. Prüfen Sie Ihre Maileinstellungen in der Einrichtung.</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Esc - Close All Videos</source>
        <translation>Esc - Alle Videos schließen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export Cancelled</source>
        <translation>Export abgebrochen</translation>
    </message>
    <message>
        <source>Export Videos</source>
        <translation>Videos exportieren</translation>
    </message>
    <message>
        <source>Export to C?</source>
        <translation>Nach C exportieren?</translation>
    </message>
    <message>
        <source>Exporting Videos, Please Wait.....</source>
        <translation>Videos werden exportiert, bitte warten.....</translation>
    </message>
    <message>
        <source>Exposure, gain, focus and white balance of the camera</source>
        <translation>Belichtung, Verstärkung, Schärfe und Weißabgleich der Kamera</translation>
    </message>
    <message>
        <source>F - Flip Video</source>
        <translation>F - Spiegeln</translation>
    </message>
    <message>
        <source>F1 - FreeHand</source>
        <translation>F1 - Freihand</translation>
    </message>
    <message>
        <source>F10 - Clock Grid</source>
        <translation>F10 - Uhrgitter</translation>
    </message>
    <message>
        <source>F11 - Arrow</source>
        <translation>F11 - Pfeil</translation>
    </message>
    <message>
        <source>F12 - Grid</source>
        <translation>F12 - Gitter</translation>
    </message>
    <message>
        <source>F2 - Plus Sign</source>
        <translation>F2 - Pluszeichen</translation>
    </message>
    <message>
        <source>F3 - Square</source>
        <translation>F3 - Rechteck</translation>
    </message>
    <message>
        <source>F4 - Line</source>
        <translation>F4 - Linie</translation>
    </message>
    <message>
        <source>F5 - Circle</source>
        <translation>F5 - Kreis</translation>
    </message>
    <message>
        <source>F6 - Angle</source>
        <translation>F6 - Winkel</translation>
    </message>
    <message>
        <source>F7 - Motion Path</source>
        <translation>F7 - Bewegungsspur</translation>
    </message>
    <message>
        <source>F8 - Parallelogram</source>
        <translation>F8 - Parallelogramm</translation>
    </message>
    <message>
        <source>F9 - Shade Zone</source>
        <translation>F9 - Zone</translation>
    </message>
    <message>
        <source>FOLLOWTHROUGH</source>
        <translation>DURCHSCHWUNG</translation>
    </message>
    <message>
        <source>FTP address</source>
        <translation>FTP-Adresse</translation>
    </message>
    <message>
        <source>Face On</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Failed to save the picture to the file: '{}'
{}</source>
        <translation>Das Bild war nicht in die Datei zu speichern: '{}'
{}</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Am schnellsten</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Fetch the file</source>
        <translation>Datei holen</translation>
    </message>
    <message>
        <source>Field %1</source>
        <translation>Feld %1</translation>
    </message>
    <message>
        <source>Figures Beside Drawings</source>
        <translation>Werte neben Zeichnungen</translation>
    </message>
    <message>
        <source>Figures beside drawings</source>
        <translation>Werte neben Zeichnungen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File Conversion, Save and Move Complete</source>
        <translation>Umgewandelt, gespeichert und verschoben</translation>
    </message>
    <message>
        <source>File already exists. Choose a different name.</source>
        <translation>Die Datei gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>File successfully removed from Files to Send list.</source>
        <translation>Datei aus der Sendeliste entfernt.</translation>
    </message>
    <message>
        <source>Files Are There Already</source>
        <translation>Dateien gibt es schon</translation>
    </message>
    <message>
        <source>Files cannot go encrypted in the active mode on this computer. Choose the passive mode.</source>
        <translation>Im aktiven Modus können Dateien auf diesem Rechner nicht verschlüsselt gehen. Wählen Sie den passiven Modus.</translation>
    </message>
    <message>
        <source>Files that you choose yourself are imported under "Manually Import Video".</source>
        <translation>Dateien, die Sie selbst wählen, importieren Sie unter "Videos von Hand importieren".</translation>
    </message>
    <message>
        <source>Files to Import</source>
        <translation>Zu importierende Dateien</translation>
    </message>
    <message>
        <source>Files to Send</source>
        <translation>Zu senden</translation>
    </message>
    <message>
        <source>Files to import</source>
        <translation>Zu importierende Dateien</translation>
    </message>
    <message>
        <source>Fill All w/Current Video</source>
        <translation>Alle mit diesem Video füllen</translation>
    </message>
    <message>
        <source>Fill Bottom w/Current Video</source>
        <translation>Unten mit diesem Video füllen</translation>
    </message>
    <message>
        <source>Fill Top w/Current Video</source>
        <translation>Oben mit diesem Video füllen</translation>
    </message>
    <message>
        <source>Fill a monitor</source>
        <translation>Einen Bildschirm füllen</translation>
    </message>
    <message>
        <source>Fills the height of the window</source>
        <translation>Füllt die Höhe des Fensters</translation>
    </message>
    <message>
        <source>Find a %1</source>
        <translation>Suchen: %1</translation>
    </message>
    <message>
        <source>Find in the library</source>
        <translation>In der Bibliothek suchen</translation>
    </message>
    <message>
        <source>Find people, videos and notes (Ctrl+F)</source>
        <translation>Personen, Videos und Notizen suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Finished Recording</source>
        <translation>Aufnahme fertig</translation>
    </message>
    <message>
        <source>Firewire Camera(s)</source>
        <translation>Firewire-Kamera(s)</translation>
    </message>
    <message>
        <source>Firewire camcorders are a great solution to use with the Kinalyx software (you will know you have the right type of camera if it uses dv tapes). Using firewire has many advantages for video analysis, and is the only type of camera that utilizes ALL of the Kinalyx features.

Connect the camcorder and turn it on before you start the program. It captures 60 frames per second.</source>
        <translation>Firewire-Camcorder passen sehr gut zu Kinalyx (Sie haben die richtige Art, wenn die Kamera DV-Kassetten benutzt). Firewire hat viele Vorteile für die Videoanalyse, und nur diese Art von Kamera nutzt ALLES, was Kinalyx kann.

Schließen Sie den Camcorder an und schalten Sie ihn ein, ehe Sie das Programm starten. Er nimmt 60 Bilder je Sekunde auf.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>First select an Instructor or Database from the list below. Then, fill out the New {} information and choose "Save".</source>
        <translation>Wählen Sie unten zuerst einen Trainer oder eine Datenbank. Füllen Sie dann die Angaben aus ({}) und wählen Sie "Speichern".</translation>
    </message>
    <message>
        <source>Fit Picture in Window</source>
        <translation>Bild in Fenster einpassen</translation>
    </message>
    <message>
        <source>Fit the whole picture in its window, or fill the window (W)</source>
        <translation>Das ganze Bild ins Fenster einpassen oder das Fenster füllen (W)</translation>
    </message>
    <message>
        <source>Five lines over the picture, and on printouts</source>
        <translation>Fünf Zeilen über dem Bild und auf Ausdrucken</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flagge</translation>
    </message>
    <message>
        <source>Flip Video</source>
        <translation>Video spiegeln</translation>
    </message>
    <message>
        <source>Folder for the Clip</source>
        <translation>Ordner für den Clip</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Ordner der Videos</translation>
    </message>
    <message>
        <source>Folder...</source>
        <translation>Ordner...</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>For Which %1</source>
        <translation>Für: %1</translation>
    </message>
    <message>
        <source>Format, Width, Height, Rate, Length, Duration, File size, Color, Sound</source>
        <translation>Format, Breite, Höhe, Bildrate, Länge, Dauer, Dateigröße, Farbe, Ton</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formate</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Frames between poses</source>
        <translation>Bilder zwischen Haltungen</translation>
    </message>
    <message>
        <source>Frames from one layer of a strobe to the next</source>
        <translation>Bilder von einer Schicht des Strobes zur nächsten</translation>
    </message>
    <message>
        <source>Frames from one picture to the next</source>
        <translation>Bilder von einem Bild der Folge zum nächsten</translation>
    </message>
    <message>
        <source>Frames of the video</source>
        <translation>Bilder des Videos</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source>Freeze Video</source>
        <translation>Bild anhalten</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>From Disk...</source>
        <translation>Aus Ordner...</translation>
    </message>
    <message>
        <source>From Here On</source>
        <translation>Ab hier</translation>
    </message>
    <message>
        <source>From the level</source>
        <translation>Von der Waagrechten</translation>
    </message>
    <message>
        <source>From the upright</source>
        <translation>Von der Senkrechten</translation>
    </message>
    <message>
        <source>Full Screen Mode (Recommended)</source>
        <translation>Ganzer Bildschirm (empfohlen)</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Ganzer Bildschirm (F11)</translation>
    </message>
    <message>
        <source>Full size, centred (J)</source>
        <translation>Volle Größe, zentriert (J)</translation>
    </message>
    <message>
        <source>GIF, a short silent loop</source>
        <translation>GIF, kurze stumme Schleife</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>General Folder</source>
        <translation>Allgemeiner Ordner</translation>
    </message>
    <message>
        <source>Get More Information</source>
        <translation>Mehr darüber</translation>
    </message>
    <message>
        <source>Getting Ready to Capture Video #{} of {} in {} seconds</source>
        <translation>Aufnahme von Video {} von {} beginnt in {} Sekunden</translation>
    </message>
    <message>
        <source>Getting Video {} of {}</source>
        <translation>Video {} von {} wird geholt</translation>
    </message>
    <message>
        <source>Gives up this file and those that wait. Nothing half done is left.</source>
        <translation>Gibt diese und die wartenden Dateien auf. Nichts Halbfertiges bleibt.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Go to "%1", picture %2</source>
        <translation>Zu "%1" gehen, Bild %2</translation>
    </message>
    <message>
        <source>Go to Analysis with what is sent</source>
        <translation>Mit dem Gesendeten zur Analyse gehen</translation>
    </message>
    <message>
        <source>Go to Program Setup</source>
        <translation>Zur Einrichtung</translation>
    </message>
    <message>
        <source>Go to this mark</source>
        <translation>Zu dieser Marke gehen</translation>
    </message>
    <message>
        <source>Go to this mark. A right click names it.</source>
        <translation>Zu dieser Marke gehen. Ein Rechtsklick benennt sie.</translation>
    </message>
    <message>
        <source>Goes to Capture Videos, where the cameras stand in a list above the picture</source>
        <translation>Geht zur Videoaufnahme, wo die Kameras in einer Liste über dem Bild stehen</translation>
    </message>
    <message>
        <source>Google takes no password of the account here but an app password: a long one for this program alone. Switch on 2-Step Verification, then make one at myaccount.google.com/apppasswords.</source>
        <translation>Google nimmt hier nicht das Passwort des Kontos, sondern ein App-Passwort: ein langes nur für dieses Programm. Schalten Sie die Bestätigung in zwei Schritten ein und machen Sie eines unter myaccount.google.com/apppasswords.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Green Tan</source>
        <translation>Grün-Beige</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>HDV camcorders, discs</source>
        <translation>HDV-Camcorder, Discs</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Halb</translation>
    </message>
    <message>
        <source>Half Speed</source>
        <translation>Halbes Tempo</translation>
    </message>
    <message>
        <source>Half speed</source>
        <translation>Halbes Tempo</translation>
    </message>
    <message>
        <source>Hard Disk Space</source>
        <translation>Freier Speicherplatz</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Heading line %1</source>
        <translation>Zeile %1 der Überschrift</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Help Menu</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help and Demos</source>
        <translation>Hilfe und Demos</translation>
    </message>
    <message>
        <source>Here are the pictures of your video analysis.</source>
        <translation>Hier sind die Bilder Ihrer Videoanalyse.</translation>
    </message>
    <message>
        <source>Hide Drawings</source>
        <translation>Zeichnungen ausblenden</translation>
    </message>
    <message>
        <source>High Def Automatic Import</source>
        <translation>HD automatisch importieren</translation>
    </message>
    <message>
        <source>High Def Camera Import</source>
        <translation>HD-Kamera importieren</translation>
    </message>
    <message>
        <source>High Definition Camera</source>
        <translation>HD-Kamera</translation>
    </message>
    <message>
        <source>Holds the picture to draw upon, and lets it go on (Space)</source>
        <translation>Hält das Bild zum Zeichnen an und lässt es weitergehen (Leertaste)</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Hot zones are muted</source>
        <translation>Zonen sind stumm</translation>
    </message>
    <message>
        <source>Hot zones beep again (M)</source>
        <translation>Zonen piepen wieder (M)</translation>
    </message>
    <message>
        <source>Hot zones glow without a beep (M)</source>
        <translation>Zonen leuchten ohne Piepen (M)</translation>
    </message>
    <message>
        <source>How fast it was taken could not be stored: {}</source>
        <translation>Wie schnell es aufgenommen wurde, war nicht zu speichern: {}</translation>
    </message>
    <message>
        <source>How its fields are shown could not be noted: {}</source>
        <translation>Wie seine Halbbilder gezeigt werden, war nicht zu vermerken: {}</translation>
    </message>
    <message>
        <source>How its fields are shown could not be stored: {}</source>
        <translation>Wie seine Halbbilder gezeigt werden, war nicht zu speichern: {}</translation>
    </message>
    <message>
        <source>How little must move in a hot zone to beep: at the right end a leaf does</source>
        <translation>Wie wenig sich in einer Zone bewegen muss, bis sie piept: Am rechten Ende genügt ein Blatt</translation>
    </message>
    <message>
        <source>How much of the piece is seen over the video beneath</source>
        <translation>Wie stark der Ausschnitt über dem Video darunter zu sehen ist</translation>
    </message>
    <message>
        <source>How sensitive the microphone is: higher where hits are far away</source>
        <translation>Wie empfindlich das Mikrofon ist: höher, wo Schläge weit weg sind</translation>
    </message>
    <message>
        <source>How the pictures come</source>
        <translation>Wie die Bilder kommen</translation>
    </message>
    <message>
        <source>IDLE</source>
        <translation>BEREIT</translation>
    </message>
    <message>
        <source>IMPORTING SESSION</source>
        <translation>SITZUNG WIRD IMPORTIERT</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Abbilddatei</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>Abbilddatei</translation>
    </message>
    <message>
        <source>Image file (.iso)...</source>
        <translation>Abbilddatei (.iso)...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import Cancelled</source>
        <translation>Import abgebrochen</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importordner</translation>
    </message>
    <message>
        <source>Import Videos</source>
        <translation>Videos importieren</translation>
    </message>
    <message>
        <source>Import/Export</source>
        <translation>Import/Export</translation>
    </message>
    <message>
        <source>Import/Export Videos</source>
        <translation>Videos importieren/exportieren</translation>
    </message>
    <message>
        <source>Importing Videos... Please Wait.....</source>
        <translation>Videos werden importiert... Bitte warten.....</translation>
    </message>
    <message>
        <source>Importing {} to filename {}</source>
        <translation>{} wird importiert, Dateiname {}</translation>
    </message>
    <message>
        <source>Importing {} to filename {} in {} seconds.</source>
        <translation>{0} wird in {2} Sekunden importiert, Dateiname {1}.</translation>
    </message>
    <message>
        <source>In this video 1 {} is {:.4g} pixels.</source>
        <translation>In diesem Video ist 1 {} so viel wie {:.4g} Pixel.</translation>
    </message>
    <message>
        <source>In your library already</source>
        <translation>Schon in Ihrer Bibliothek</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Input of the microphone</source>
        <translation>Eingang des Mikrofons</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Insert Drawing Macro</source>
        <translation>Makro einsetzen</translation>
    </message>
    <message>
        <source>Instructor or Database</source>
        <translation>Trainer oder Datenbank</translation>
    </message>
    <message>
        <source>Instructor or database</source>
        <translation>Trainer oder Datenbank</translation>
    </message>
    <message>
        <source>Instructors</source>
        <translation>Trainer</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Internet connection failed.</source>
        <translation>Internetverbindung gescheitert.</translation>
    </message>
    <message>
        <source>Invalid Character in name. Please try again.</source>
        <translation>Unzulässiges Zeichen im Namen. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Invalid character in Name</source>
        <translation>Unzulässiges Zeichen im Namen</translation>
    </message>
    <message>
        <source>Invalid character in name.</source>
        <translation>Unzulässiges Zeichen im Namen.</translation>
    </message>
    <message>
        <source>Invalid character in {} Name.</source>
        <translation>Unzulässiges Zeichen im {}-Namen.</translation>
    </message>
    <message>
        <source>Invalid character in {} name.</source>
        <translation>Unzulässiges Zeichen im {}-Namen.</translation>
    </message>
    <message>
        <source>Is seen as a whole</source>
        <translation>Ist ganz zu sehen</translation>
    </message>
    <message>
        <source>Is there</source>
        <translation>Vorhanden</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie ist nicht zu lesen.</translation>
    </message>
    <message>
        <source>It goes to the trash of the desktop, from where it can be taken back.</source>
        <translation>Es kommt in den Papierkorb des Desktops und lässt sich von dort zurückholen.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Es ist nicht mehr da.</translation>
    </message>
    <message>
        <source>It lies in "{}": {}</source>
        <translation>Es liegt in "{}": {}</translation>
    </message>
    <message>
        <source>It lies in {}</source>
        <translation>Sie liegt in {}</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>Es wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Its folder in the library cannot be made.</source>
        <translation>Sein Ordner in der Bibliothek kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>K keeps %1 in %2</source>
        <translation>K behält %1 in %2</translation>
    </message>
    <message>
        <source>K: the next video has no name yet</source>
        <translation>K: Das nächste Video hat noch keinen Namen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Keep the camera's picture size</source>
        <translation>Bildgröße der Kamera behalten</translation>
    </message>
    <message>
        <source>Keep the videos in a folder of your choice, for example on a server</source>
        <translation>Die Videos in einem Ordner Ihrer Wahl aufbewahren, etwa auf einem Server</translation>
    </message>
    <message>
        <source>Keeping {:.1f} s...</source>
        <translation>{:.1f} s werden aufbewahrt...</translation>
    </message>
    <message>
        <source>Keeps the drawings as a macro and lays them on the video in analysis</source>
        <translation>Bewahrt die Zeichnungen als Makro auf und legt sie in der Analyse auf das Video</translation>
    </message>
    <message>
        <source>Keeps the notes in a file</source>
        <translation>Bewahrt die Notizen in einer Datei auf</translation>
    </message>
    <message>
        <source>Keeps the strip as a PNG or JPEG picture</source>
        <translation>Bewahrt den Streifen als PNG- oder JPEG-Bild auf</translation>
    </message>
    <message>
        <source>Keeps the strobe as a PNG or JPEG picture</source>
        <translation>Bewahrt das Strobe als PNG- oder JPEG-Bild auf</translation>
    </message>
    <message>
        <source>Kept: {}</source>
        <translation>Aufbewahrt: {}</translation>
    </message>
    <message>
        <source>Key H</source>
        <translation>Taste H</translation>
    </message>
    <message>
        <source>Keys and drawing tools as they have always been</source>
        <translation>Tasten und Werkzeuge, wie sie immer waren</translation>
    </message>
    <message>
        <source>Keys and tools</source>
        <translation>Tasten und Werkzeuge</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Kilometer je Stunde</translation>
    </message>
    <message>
        <source>Kinalyx Initial Setup</source>
        <translation>Kinalyx einrichten</translation>
    </message>
    <message>
        <source>Kinalyx Viewer</source>
        <translation>Kinalyx Viewer</translation>
    </message>
    <message>
        <source>Kinalyx broke off last time. A report of it lies on this computer, and is sent nowhere.</source>
        <translation>Kinalyx ist letztes Mal abgestürzt. Ein Bericht liegt auf diesem Rechner und wird nirgendwohin gesendet.</translation>
    </message>
    <message>
        <source>Kinalyx is running already, but does not answer. Do you want to start it once more?</source>
        <translation>Kinalyx läuft schon, antwortet aber nicht. Möchten Sie es noch einmal starten?</translation>
    </message>
    <message>
        <source>Kinalyx starts anew to change its language.</source>
        <translation>Kinalyx startet neu, um die Sprache zu ändern.</translation>
    </message>
    <message>
        <source>Kinalyx starts anew to change its window.</source>
        <translation>Kinalyx startet neu, um sein Fenster zu ändern.</translation>
    </message>
    <message>
        <source>Kinalyx watches a folder. Each video that arrives there is converted and kept under the next name, while you go on teaching.</source>
        <translation>Kinalyx beobachtet einen Ordner. Jedes Video, das dort ankommt, wird umgewandelt und unter dem nächsten Namen aufbewahrt, während Sie weiter unterrichten.</translation>
    </message>
    <message>
        <source>Kinds of Video</source>
        <translation>Arten von Videos</translation>
    </message>
    <message>
        <source>Kinds of video</source>
        <translation>Arten von Videos</translation>
    </message>
    <message>
        <source>L - Loop Video</source>
        <translation>L - Wiederholen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Large (Windowed 1280x800)</source>
        <translation>Groß (Fenster 1280x800)</translation>
    </message>
    <message>
        <source>Last Video Saved Successfully</source>
        <translation>Letztes Video gespeichert</translation>
    </message>
    <message>
        <source>Last Video Saved Successfully. The original is still in its folder: {}</source>
        <translation>Letztes Video gespeichert. Das Original liegt noch in seinem Ordner: {}</translation>
    </message>
    <message>
        <source>Last Video WAS NOT SAVED</source>
        <translation>Letztes Video NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source>Last Video WAS NOT SAVED: {}</source>
        <translation>Letztes Video NICHT GESPEICHERT: {}</translation>
    </message>
    <message>
        <source>Last video saved was sent to Analysis.</source>
        <translation>Letztes Video wurde zur Analyse gesendet.</translation>
    </message>
    <message>
        <source>Later in the report</source>
        <translation>Weiter hinten im Bericht</translation>
    </message>
    <message>
        <source>Lays the drawing over the current video in place of what is drawn there</source>
        <translation>Legt die Zeichnung auf dieses Video, statt dessen, was dort gezeichnet ist</translation>
    </message>
    <message>
        <source>Lays the poses from start to end into one picture; without an end, to the last one</source>
        <translation>Legt die Haltungen vom Anfang bis zum Ende in ein Bild; ohne Ende bis zur letzten</translation>
    </message>
    <message>
        <source>Leave multi-picture mode first (Esc)</source>
        <translation>Verlassen Sie zuerst das Mehrbild (Esc)</translation>
    </message>
    <message>
        <source>Leave the transparency carve first (Esc)</source>
        <translation>Verlassen Sie zuerst den Durchsicht-Ausschnitt (Esc)</translation>
    </message>
    <message>
        <source>Leave transparency mode (Esc)</source>
        <translation>Durchsicht verlassen (Esc)</translation>
    </message>
    <message>
        <source>Leave transparency mode first (Esc)</source>
        <translation>Verlassen Sie zuerst die Durchsicht (Esc)</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Left Arrow - Back 1 Frame</source>
        <translation>Pfeil links - 1 Bild zurück</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Left arrow key</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Lefty Print</source>
        <translation>Druck für Linkshänder</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Length is in</source>
        <translation>Einheit der Länge</translation>
    </message>
    <message>
        <source>Lesson Name already exists. Please choose a different name.</source>
        <translation>Eine Lektion dieses Namens gibt es schon. Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Lesson paused: Stop Recording</source>
        <translation>Lektion pausiert: Aufnahme beenden</translation>
    </message>
    <message>
        <source>Lesson successfully added to the Files to Send list.</source>
        <translation>Lektion in die Sendeliste aufgenommen.</translation>
    </message>
    <message>
        <source>Lesson: Stop Recording</source>
        <translation>Lektion: Aufnahme beenden</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>Lektionen</translation>
    </message>
    <message>
        <source>Lessons and videos</source>
        <translation>Lektionen und Videos</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Level of the microphone</source>
        <translation>Pegel des Mikrofons</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Light, as it has always been</source>
        <translation>Hell, wie es immer war</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Line Up Videos by Mark</source>
        <translation>Videos nach Marke ausrichten</translation>
    </message>
    <message>
        <source>Line drawn</source>
        <translation>Gezeichnete Linie</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Lines lean</source>
        <translation>Neigung von Linien</translation>
    </message>
    <message>
        <source>List of videos to open</source>
        <translation>Liste der Videos zum Öffnen</translation>
    </message>
    <message>
        <source>Lit when there are drawings on the video</source>
        <translation>Leuchtet, wenn das Video Zeichnungen hat</translation>
    </message>
    <message>
        <source>Lit when there are notes on the video</source>
        <translation>Leuchtet, wenn es Notizen zum Video gibt</translation>
    </message>
    <message>
        <source>Live %1</source>
        <translation>Live %1</translation>
    </message>
    <message>
        <source>Live Draw &amp; Hot Zones</source>
        <translation>Live zeichnen &amp; Zonen</translation>
    </message>
    <message>
        <source>Live Draw &amp;&amp; Hot Zones</source>
        <translation>Live zeichnen &amp;&amp; Zonen</translation>
    </message>
    <message>
        <source>Live Video</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>Live draw is shown</source>
        <translation>Live zeichnen ist offen</translation>
    </message>
    <message>
        <source>Load %1 Files</source>
        <translation>Dateien laden (%1)</translation>
    </message>
    <message>
        <source>Loading Analysis</source>
        <translation>Analyse wird geladen</translation>
    </message>
    <message>
        <source>Loading Analysis Section...</source>
        <translation>Analyse wird geladen...</translation>
    </message>
    <message>
        <source>Lock All Four Videos</source>
        <translation>Alle vier koppeln</translation>
    </message>
    <message>
        <source>Lock Videos Together</source>
        <translation>Videos koppeln</translation>
    </message>
    <message>
        <source>Lock all four videos together</source>
        <translation>Alle vier Videos koppeln</translation>
    </message>
    <message>
        <source>Locked videos back one frame; hold to go on</source>
        <translation>Gekoppelte Videos ein Bild zurück; halten geht weiter</translation>
    </message>
    <message>
        <source>Locked videos forward one frame; hold to go on</source>
        <translation>Gekoppelte Videos ein Bild vor; halten geht weiter</translation>
    </message>
    <message>
        <source>Locked videos go by the time</source>
        <translation>Gekoppelte Videos gehen nach der Zeit</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Login or password hold a line end or another control character.</source>
        <translation>Login oder Passwort enthalten ein Zeilenende oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <source>Login or password of your mailbox are not set yet. Type them in Program Setup, Internet.</source>
        <translation>Login oder Passwort Ihres Postfachs fehlen noch. Geben Sie sie in der Einrichtung unter Internet ein.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Long term Goals</source>
        <translation>Ferne Ziele</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Look at It</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Look for a new version at start</source>
        <translation>Beim Start nach einer neuen Version sehen</translation>
    </message>
    <message>
        <source>Looking for cameras...</source>
        <translation>Kameras werden gesucht...</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Drucker werden gesucht...</translation>
    </message>
    <message>
        <source>Looking through the library ... %1</source>
        <translation>Die Bibliothek wird durchsucht ... %1</translation>
    </message>
    <message>
        <source>Looking...</source>
        <translation>Wird nachgesehen...</translation>
    </message>
    <message>
        <source>Looks at the folder again</source>
        <translation>Sieht wieder im Ordner nach</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Loop (%1)</source>
        <translation>Wiederholen (%1)</translation>
    </message>
    <message>
        <source>Loop (L)</source>
        <translation>Wiederholen (L)</translation>
    </message>
    <message>
        <source>Loop All Videos</source>
        <translation>Alle Videos wiederholen</translation>
    </message>
    <message>
        <source>Loop and keep fewer seconds (-)</source>
        <translation>Weniger Sekunden wiederholen und aufbewahren (-)</translation>
    </message>
    <message>
        <source>Loop and keep more seconds (+)</source>
        <translation>Mehr Sekunden wiederholen und aufbewahren (+)</translation>
    </message>
    <message>
        <source>MP4 for old telephones</source>
        <translation>MP4 für alte Telefone</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>MP4-Video</translation>
    </message>
    <message>
        <source>MP4, for telephones too</source>
        <translation>MP4, auch für Telefone</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>Mail server (SMTP)</source>
        <translation>Mailserver (SMTP)</translation>
    </message>
    <message>
        <source>Mail service</source>
        <translation>Maildienst</translation>
    </message>
    <message>
        <source>Main Menu</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>Main Menu - End key</source>
        <translation>Ende - Hauptmenü</translation>
    </message>
    <message>
        <source>Manually Import Video</source>
        <translation>Videos von Hand importieren</translation>
    </message>
    <message>
        <source>Manually enter all Video Names</source>
        <translation>Alle Namen von Hand eingeben</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Mark %1</source>
        <translation>Marke %1</translation>
    </message>
    <message>
        <source>Mark Video Position</source>
        <translation>Stelle markieren</translation>
    </message>
    <message>
        <source>Marked picture {}. Name it...</source>
        <translation>Bild {} markiert. Benennen...</translation>
    </message>
    <message>
        <source>Marks another area of the same video</source>
        <translation>Wählt einen anderen Bereich desselben Videos</translation>
    </message>
    <message>
        <source>Marks of this video</source>
        <translation>Marken dieses Videos</translation>
    </message>
    <message>
        <source>Maroon Tan</source>
        <translation>Braun-Beige</translation>
    </message>
    <message>
        <source>Maximize Current Video</source>
        <translation>Dieses Video groß zeigen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Maß</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>Measures (nothing is measured)</source>
        <translation>Maße (nichts ist gemessen)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Medium (Windowed 1024x768)</source>
        <translation>Mittel (Fenster 1024x768)</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Meter je Sekunde</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Microphone Active... Monitoring for Sound</source>
        <translation>Mikrofon an... Wartet auf einen Ton</translation>
    </message>
    <message>
        <source>Microsoft lets no other program send from Hotmail and Outlook.com with a password any more. Choose another service, or Other with the mailbox of your club.</source>
        <translation>Microsoft lässt kein anderes Programm mehr mit einem Passwort von Hotmail und Outlook.com senden. Wählen Sie einen anderen Dienst, oder Anderer mit dem Postfach Ihres Vereins.</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Meilen je Stunde</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegel</translation>
    </message>
    <message>
        <source>Missing: %1. Install the package libavcodec-extra, and start the program again.</source>
        <translation>Es fehlt: %1. Installieren Sie das Paket libavcodec-extra und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>Mix of the two videos</source>
        <translation>Mischung der beiden Videos</translation>
    </message>
    <message>
        <source>Model Swing</source>
        <translation>Modellschwung</translation>
    </message>
    <message>
        <source>Model Videos</source>
        <translation>Modellvideos</translation>
    </message>
    <message>
        <source>Model videos are still coming. Do you want to give them up?</source>
        <translation>Modellvideos werden noch geholt. Möchten Sie sie aufgeben?</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
    <message>
        <source>Monitoring Video... Click at end of swing.</source>
        <translation>Beobachtung läuft... Klicken Sie am Ende des Schwungs.</translation>
    </message>
    <message>
        <source>More tools, in a second row</source>
        <translation>Mehr Werkzeuge in einer zweiten Reihe</translation>
    </message>
    <message>
        <source>Most often your e-mail address</source>
        <translation>Meist Ihre E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Motion Analysis</source>
        <translation>Bewegungsanalyse</translation>
    </message>
    <message>
        <source>Motion analysis for sports instructors.</source>
        <translation>Bewegungsanalyse für Sporttrainer.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move All Videos</source>
        <translation>Alle Videos bewegen</translation>
    </message>
    <message>
        <source>Move Heading</source>
        <translation>Titel verschieben</translation>
    </message>
    <message>
        <source>Move the current video to a different instructor or database.</source>
        <translation>Dieses Video zu einem anderen Trainer oder in eine andere Datenbank verschieben.</translation>
    </message>
    <message>
        <source>Move the current {} to another database or instructor.</source>
        <translation>{} zu anderem Trainer oder in andere Datenbank verschieben.</translation>
    </message>
    <message>
        <source>Move the {} selected videos to a different instructor or database.</source>
        <translation>Die {} gewählten Videos zu anderem Trainer oder in andere Datenbank verschieben.</translation>
    </message>
    <message>
        <source>Move these {} videos</source>
        <translation>Diese {} Videos verschieben</translation>
    </message>
    <message>
        <source>Move this video: {}</source>
        <translation>Video verschieben: {}</translation>
    </message>
    <message>
        <source>Move this {}</source>
        <translation>{} verschieben</translation>
    </message>
    <message>
        <source>Move: drag from here, or press Shift and an arrow key</source>
        <translation>Bewegen: von hier ziehen oder Umschalt mit Pfeiltaste</translation>
    </message>
    <message>
        <source>Moves the current video</source>
        <translation>Bewegt dieses Video</translation>
    </message>
    <message>
        <source>Moves the locked videos together</source>
        <translation>Bewegt die gekoppelten Videos gemeinsam</translation>
    </message>
    <message>
        <source>Multi-Picture Mode</source>
        <translation>Mehrbild</translation>
    </message>
    <message>
        <source>NOTES AND FIELDS</source>
        <translation>NOTIZEN UND FELDER</translation>
    </message>
    <message>
        <source>NTSC, 60 fields a second</source>
        <translation>NTSC, 60 Halbbilder je Sekunde</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name and company appear on printouts and in your mails. All of this can be changed at any time under Program Setup.</source>
        <translation>Name und Firma stehen auf Ausdrucken und in Ihren E-Mails. Alles lässt sich jederzeit unter Einrichtung ändern.</translation>
    </message>
    <message>
        <source>Name and password have fields of their own: they do not belong into the address.</source>
        <translation>Name und Passwort haben eigene Felder: Sie gehören nicht in die Adresse.</translation>
    </message>
    <message>
        <source>Name of the Video</source>
        <translation>Name des Videos</translation>
    </message>
    <message>
        <source>Name of the lesson</source>
        <translation>Name der Lektion</translation>
    </message>
    <message>
        <source>Name of the mark</source>
        <translation>Name der Marke</translation>
    </message>
    <message>
        <source>Name of the new instructor or database</source>
        <translation>Name des neuen Trainers oder der neuen Datenbank</translation>
    </message>
    <message>
        <source>Name of the next video</source>
        <translation>Name des nächsten Videos</translation>
    </message>
    <message>
        <source>Names of the videos</source>
        <translation>Namen der Videos</translation>
    </message>
    <message>
        <source>Needs a layout of four, six or eight windows and a video in the current one</source>
        <translation>Braucht vier, sechs oder acht Fenster und ein Video in diesem</translation>
    </message>
    <message>
        <source>Needs a layout of several windows and a video in the current one</source>
        <translation>Braucht mehrere Fenster und ein Video in diesem</translation>
    </message>
    <message>
        <source>Needs drawings in the current window and a video in another one</source>
        <translation>Braucht Zeichnungen in diesem Fenster und ein Video in einem anderen</translation>
    </message>
    <message>
        <source>Needs the picture of a camera</source>
        <translation>Braucht das Bild einer Kamera</translation>
    </message>
    <message>
        <source>Needs videos in two windows or more</source>
        <translation>Braucht Videos in zwei oder mehr Fenstern</translation>
    </message>
    <message>
        <source>Needs videos in windows 1 and 2, or 3 and 4, side by side</source>
        <translation>Braucht Videos in den Fenstern 1 und 2 oder 3 und 4 nebeneinander</translation>
    </message>
    <message>
        <source>Needs videos in windows 1 to 4, in a layout of four windows or more</source>
        <translation>Braucht Videos in den Fenstern 1 bis 4 und mindestens vier Fenster</translation>
    </message>
    <message>
        <source>Neither of the two videos could be saved: </source>
        <translation>Keines der beiden Videos konnte gespeichert werden: </translation>
    </message>
    <message>
        <source>Network Path Change</source>
        <translation>Anderer Netzwerkpfad</translation>
    </message>
    <message>
        <source>Network Server Enabled</source>
        <translation>Netzwerkordner verwenden</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New Kinalyx Update Available!</source>
        <translation>Neue Version von Kinalyx!</translation>
    </message>
    <message>
        <source>New macro</source>
        <translation>Neues Makro</translation>
    </message>
    <message>
        <source>New {} successfully created.</source>
        <translation>Neu angelegt: {}.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Als Nächstes</translation>
    </message>
    <message>
        <source>Next Drawing</source>
        <translation>Nächste Zeichnung</translation>
    </message>
    <message>
        <source>Next drawing (Tab)</source>
        <translation>Nächste Zeichnung (Tab)</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Next picture (Right Arrow); hold to go on</source>
        <translation>Nächstes Bild (Pfeil rechts); halten geht weiter</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No %1 Selected</source>
        <translation>Ohne Wahl: %1</translation>
    </message>
    <message>
        <source>No %1 here.</source>
        <translation>Hier gibt es keine %1.</translation>
    </message>
    <message>
        <source>No Available space on removeable disk</source>
        <translation>Kein freier Platz auf dem Wechseldatenträger</translation>
    </message>
    <message>
        <source>No Camera {} Saved</source>
        <translation>Keine Kamera {} gespeichert</translation>
    </message>
    <message>
        <source>No Email address on file.</source>
        <translation>Keine E-Mail-Adresse vorhanden.</translation>
    </message>
    <message>
        <source>No Name</source>
        <translation>Kein Name</translation>
    </message>
    <message>
        <source>No Pictures to Send.</source>
        <translation>Keine Bilder zu senden.</translation>
    </message>
    <message>
        <source>No Videos Selected</source>
        <translation>Keine Videos gewählt</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>No camera is chosen.</source>
        <translation>Es ist keine Kamera gewählt.</translation>
    </message>
    <message>
        <source>No camera is connected. Plug one in, and it shows here.</source>
        <translation>Keine Kamera ist angeschlossen. Stecken Sie eine an, dann ist sie hier zu sehen.</translation>
    </message>
    <message>
        <source>No change of drawings or zones to undo</source>
        <translation>Nichts an Zeichnungen oder Zonen rückgängig zu machen</translation>
    </message>
    <message>
        <source>No change of drawings or zones was undone</source>
        <translation>Nichts an Zeichnungen oder Zonen wurde rückgängig gemacht</translation>
    </message>
    <message>
        <source>No change of the drawings in the current window to undo</source>
        <translation>In diesem Fenster ist nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>No change of the drawings in the current window was undone</source>
        <translation>In diesem Fenster wurde nichts rückgängig gemacht</translation>
    </message>
    <message>
        <source>No drawing of the current video belongs to a moment</source>
        <translation>Keine Zeichnung dieses Videos gehört zu einem Moment</translation>
    </message>
    <message>
        <source>No drive</source>
        <translation>Kein Laufwerk</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Noch ist kein Ordner gewählt.</translation>
    </message>
    <message>
        <source>No instructors or databases here.</source>
        <translation>Hier sind keine Trainer oder Datenbanken.</translation>
    </message>
    <message>
        <source>No lessons yet. Record Lesson in the analysis section makes one.</source>
        <translation>Noch keine Lektionen. In der Analyse macht "Lektion aufnehmen" eine.</translation>
    </message>
    <message>
        <source>No macros yet. Draw something, then choose Save Drawing Macro.</source>
        <translation>Noch keine Makros. Zeichnen Sie etwas, dann: Als Makro speichern.</translation>
    </message>
    <message>
        <source>No mail server is set yet. Choose your mail service in Program Setup, Internet.</source>
        <translation>Noch ist kein Mailserver eingestellt. Wählen Sie in der Einrichtung unter Internet Ihren Maildienst.</translation>
    </message>
    <message>
        <source>No mail server is set.</source>
        <translation>Es ist kein Mailserver eingestellt.</translation>
    </message>
    <message>
        <source>No microphone is chosen.</source>
        <translation>Es ist kein Mikrofon gewählt.</translation>
    </message>
    <message>
        <source>No microphone is chosen: see Program Setup, Capture.</source>
        <translation>Kein Mikrofon ist gewählt: siehe Einrichtung, Aufnahme.</translation>
    </message>
    <message>
        <source>No microphone is connected</source>
        <translation>Kein Mikrofon ist angeschlossen</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>Kein Mikrofon ist angeschlossen.</translation>
    </message>
    <message>
        <source>No microphone is connected. Plug one in, and try again.</source>
        <translation>Kein Mikrofon ist angeschlossen. Stecken Sie eines an und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Kein Drucker</translation>
    </message>
    <message>
        <source>No printer is set up on this machine, or none answers. The pages can be kept as a PDF file.</source>
        <translation>Auf diesem Rechner ist kein Drucker eingerichtet, oder keiner antwortet. Die Seiten lassen sich als PDF-Datei aufbewahren.</translation>
    </message>
    <message>
        <source>No ruler here yet. Measure with the one used last?</source>
        <translation>Noch kein Maß hier. Mit dem letzten messen?</translation>
    </message>
    <message>
        <source>No server for model videos is set. If your club or association has one, type its address into Program Setup, Internet.</source>
        <translation>Es ist kein Server für Modellvideos eingestellt. Hat Ihr Verein oder Verband einen, geben Sie seine Adresse in der Einrichtung unter Internet ein.</translation>
    </message>
    <message>
        <source>No server for updates is set. Type the address that you were given into "Server for updates" first.</source>
        <translation>Es ist kein Server für Updates eingestellt. Geben Sie zuerst die Adresse, die Sie bekommen haben, unter "Server für Updates" ein.</translation>
    </message>
    <message>
        <source>No server is set.</source>
        <translation>Es ist kein Server eingestellt.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Kein Ton</translation>
    </message>
    <message>
        <source>No two videos have a mark of the same name: a right click on a mark names it</source>
        <translation>Keine zwei Videos haben eine gleichnamige Marke: Ein Rechtsklick auf eine Marke benennt sie</translation>
    </message>
    <message>
        <source>No video here</source>
        <translation>Hier ist kein Video</translation>
    </message>
    <message>
        <source>No video in this window</source>
        <translation>In diesem Fenster ist kein Video</translation>
    </message>
    <message>
        <source>No video was closed, or every window is taken</source>
        <translation>Es wurde kein Video geschlossen, oder alle Fenster sind belegt</translation>
    </message>
    <message>
        <source>No videos here.</source>
        <translation>Hier sind keine Videos.</translation>
    </message>
    <message>
        <source>No videos lie in the library folder itself.</source>
        <translation>Im Bibliotheksordner selbst liegen keine Videos.</translation>
    </message>
    <message>
        <source>No videos were copied to {}</source>
        <translation>Es wurden keine Videos zu {} kopiert</translation>
    </message>
    <message>
        <source>No videos were moved.</source>
        <translation>Es wurden keine Videos verschoben.</translation>
    </message>
    <message>
        <source>No videos yet. Capture or import one, or copy video files into the folder of this {}.</source>
        <translation>Noch keine Videos. Nehmen Sie eines auf, importieren Sie eines, oder kopieren Sie Videodateien in diesen Ordner ({}).</translation>
    </message>
    <message>
        <source>No videos yet. Copy one here with Quick Launch +.</source>
        <translation>Noch keine Videos. Schnellstart + kopiert eines hierher.</translation>
    </message>
    <message>
        <source>No {} here yet.</source>
        <translation>Hier sind noch keine {}.</translation>
    </message>
    <message>
        <source>No {} here yet. Add the first one beneath this list.</source>
        <translation>Hier sind noch keine {}. Unter dieser Liste kommt der erste Eintrag hinzu.</translation>
    </message>
    <message>
        <source>No {} here.</source>
        <translation>Hier sind keine {}.</translation>
    </message>
    <message>
        <source>None is connected: no voice</source>
        <translation>Keines angeschlossen: ohne Stimme</translation>
    </message>
    <message>
        <source>None of these files is a video that can be imported.</source>
        <translation>Keine dieser Dateien ist ein Video, das sich importieren lässt.</translation>
    </message>
    <message>
        <source>None: no voice</source>
        <translation>Keines: ohne Stimme</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Not all of the picture is seen: a click brings the whole of it back</source>
        <translation>Das Bild ist nicht ganz zu sehen: Ein Klick zeigt es ganz</translation>
    </message>
    <message>
        <source>Not before it is plugged in again</source>
        <translation>Erst wenn es wieder angeschlossen wird</translation>
    </message>
    <message>
        <source>Not in use</source>
        <translation>Nicht in Gebrauch</translation>
    </message>
    <message>
        <source>Not kept. Choose on the capture page whose video it is.</source>
        <translation>Nicht aufbewahrt. Wählen Sie auf der Aufnahmeseite, wessen Video es ist.</translation>
    </message>
    <message>
        <source>Not kept. The camera has only just begun.</source>
        <translation>Nicht aufbewahrt. Die Kamera hat gerade erst begonnen.</translation>
    </message>
    <message>
        <source>Not kept. The disk does not answer.</source>
        <translation>Nicht aufbewahrt. Der Datenträger antwortet nicht.</translation>
    </message>
    <message>
        <source>Not kept. {}</source>
        <translation>Nicht aufbewahrt. {}</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Not sent. The pictures stay in the queue.</source>
        <translation>Nicht gesendet. Die Bilder bleiben in der Warteschlange.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Notes (*.txt;*.html;*.htm)|*.txt; *.html; *.htm</source>
        <translation>Notizen (*.txt;*.html;*.htm)|*.txt; *.html; *.htm</translation>
    </message>
    <message>
        <source>Notes of another video of this name are in the way.</source>
        <translation>Notizen eines anderen Videos dieses Namens sind im Weg.</translation>
    </message>
    <message>
        <source>Nothing can be kept while the capture page has the camera.</source>
        <translation>Solange die Aufnahmeseite die Kamera hat, kann nichts aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Nothing is drawn here</source>
        <translation>Hier ist nichts gezeichnet</translation>
    </message>
    <message>
        <source>Nothing is drawn in the current window</source>
        <translation>In diesem Fenster ist nichts gezeichnet</translation>
    </message>
    <message>
        <source>Nothing is drawn on the picture</source>
        <translation>Auf dem Bild ist nichts gezeichnet</translation>
    </message>
    <message>
        <source>Nothing of it could be written.</source>
        <translation>Nichts davon konnte geschrieben werden.</translation>
    </message>
    <message>
        <source>Nothing of that time is remembered yet.</source>
        <translation>Von dieser Zeit ist noch nichts gemerkt.</translation>
    </message>
    <message>
        <source>Nothing to send yet. Choose videos or lessons on the left and add them, or drag them here.</source>
        <translation>Noch nichts zu senden. Wählen Sie links Videos oder Lektionen und fügen Sie sie hinzu, oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>Es wurde nichts kopiert.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Nothing was heard.</source>
        <translation>Es war nichts zu hören.</translation>
    </message>
    <message>
        <source>Nothing was printed. The printer "{}" does not take the pages: {}</source>
        <translation>Es wurde nichts gedruckt. Der Drucker "{}" nimmt die Seiten nicht an: {}</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Number of the picture that is shown</source>
        <translation>Nummer des gezeigten Bildes</translation>
    </message>
    <message>
        <source>O - Open New Video</source>
        <translation>O - Neues Video öffnen</translation>
    </message>
    <message>
        <source>OGG files</source>
        <translation>OGG-Dateien</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>On This Picture</source>
        <translation>Auf diesem Bild</translation>
    </message>
    <message>
        <source>On Whole Video</source>
        <translation>Im ganzen Video</translation>
    </message>
    <message>
        <source>On the left side</source>
        <translation>Auf der linken Seite</translation>
    </message>
    <message>
        <source>On the right side</source>
        <translation>Auf der rechten Seite</translation>
    </message>
    <message>
        <source>One Cam</source>
        <translation>1 Kamera</translation>
    </message>
    <message>
        <source>One Click</source>
        <translation>Ein Klick</translation>
    </message>
    <message>
        <source>One file was copied that cannot be opened. It may be damaged, or be no video:
</source>
        <translation>Eine kopierte Datei lässt sich nicht öffnen. Sie ist vielleicht beschädigt oder kein Video:
</translation>
    </message>
    <message>
        <source>One new video on "{}"</source>
        <translation>Ein neues Video auf "{}"</translation>
    </message>
    <message>
        <source>Only video 1</source>
        <translation>Nur Video 1</translation>
    </message>
    <message>
        <source>Only video 2</source>
        <translation>Nur Video 2</translation>
    </message>
    <message>
        <source>Only {} s of this camera fit into the memory. Choose a shorter delay.</source>
        <translation>Nur {} s dieser Kamera passen in den Speicher. Wählen Sie eine kürzere Verzögerung.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opacity of the piece</source>
        <translation>Deckkraft des Ausschnitts</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open Edit Bar</source>
        <translation>Änderungsleiste öffnen</translation>
    </message>
    <message>
        <source>Open From Disk...</source>
        <translation>Aus Ordner öffnen...</translation>
    </message>
    <message>
        <source>Open Notes</source>
        <translation>Notizen öffnen</translation>
    </message>
    <message>
        <source>Open Videos</source>
        <translation>Videos öffnen</translation>
    </message>
    <message>
        <source>Open Videos From Disk</source>
        <translation>Videos aus einem Ordner öffnen</translation>
    </message>
    <message>
        <source>Open a video first</source>
        <translation>Öffnen Sie zuerst ein Video</translation>
    </message>
    <message>
        <source>Open a video first.</source>
        <translation>Öffnen Sie zuerst ein Video.</translation>
    </message>
    <message>
        <source>Open videos in windows 1 and 2 first</source>
        <translation>Öffnen Sie zuerst Videos in den Fenstern 1 und 2</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Opens notes that were kept in a file</source>
        <translation>Öffnet Notizen aus einer Datei</translation>
    </message>
    <message>
        <source>Opens the video that was saved last in the analysis section</source>
        <translation>Öffnet das zuletzt gespeicherte Video in der Analyse</translation>
    </message>
    <message>
        <source>Opens videos that lie anywhere, as they lie: nothing is copied to the library</source>
        <translation>Öffnet Videos von überall, wo sie liegen: nichts wird in die Bibliothek kopiert</translation>
    </message>
    <message>
        <source>Opens what belongs together with a distance wedge, chip, bunker or putting video</source>
        <translation>Öffnet, was mit einem Video von Weitschlag, Chip, Bunker oder Putten zusammengehört</translation>
    </message>
    <message>
        <source>Operation Cancelled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderer</translation>
    </message>
    <message>
        <source>Other Name...</source>
        <translation>Anderer Name...</translation>
    </message>
    <message>
        <source>Other extension</source>
        <translation>Anderer Zusatz</translation>
    </message>
    <message>
        <source>Outdoor Mode</source>
        <translation>Im Freien</translation>
    </message>
    <message>
        <source>P - Play / Pause Toggle</source>
        <translation>P - Abspielen / Pause</translation>
    </message>
    <message>
        <source>PAL, 50 fields a second</source>
        <translation>PAL, 50 Halbbilder je Sekunde</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>PERSONEN</translation>
    </message>
    <message>
        <source>PNG picture (*.png)|*.png|JPEG picture (*.jpg *.jpeg)|*.jpg; *.jpeg</source>
        <translation>PNG-Bild (*.png)|*.png|JPEG-Bild (*.jpg *.jpeg)|*.jpg; *.jpeg</translation>
    </message>
    <message>
        <source>PREPARING</source>
        <translation>VORBEREITUNG</translation>
    </message>
    <message>
        <source>PUTTING</source>
        <translation>PUTTEN</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page from which a new version is fetched</source>
        <translation>Seite, von der eine neue Version zu holen ist</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Page {}</source>
        <translation>Seite {}</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Pan down (keypad 2); hold to go on</source>
        <translation>Nach unten (Ziffernblock 2); halten geht weiter</translation>
    </message>
    <message>
        <source>Pan left (keypad 4); hold to go on</source>
        <translation>Nach links (Ziffernblock 4); halten geht weiter</translation>
    </message>
    <message>
        <source>Pan right (keypad 6); hold to go on</source>
        <translation>Nach rechts (Ziffernblock 6); halten geht weiter</translation>
    </message>
    <message>
        <source>Pan up (keypad 8); hold to go on</source>
        <translation>Nach oben (Ziffernblock 8); halten geht weiter</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Parallelogram</source>
        <translation>Parallelogramm</translation>
    </message>
    <message>
        <source>Parallelogram, 10 of 10</source>
        <translation>Parallelogramm, 10 von 10</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Passiv</translation>
    </message>
    <message>
        <source>Passive goes through most routers</source>
        <translation>Passiv geht durch die meisten Router</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Past Injuries</source>
        <translation>Frühere Verletzungen</translation>
    </message>
    <message>
        <source>Path Trace</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the locked videos</source>
        <translation>Gekoppelte Videos anhalten</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Phone #</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Physical Restrictions</source>
        <translation>Körperliche Grenzen</translation>
    </message>
    <message>
        <source>Pick the videos by hand, cut off what is too much, and Kinalyx keeps them in the student's folder.</source>
        <translation>Wählen Sie die Videos von Hand, schneiden Sie ab, was zu viel ist, und Kinalyx bewahrt sie auf.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>Picture 0 of 0</source>
        <translation>Bild 0 von 0</translation>
    </message>
    <message>
        <source>Picture Saved... You now have {} pictures queued for emailing.</source>
        <translation>Bild gespeichert... Jetzt warten {} Bilder auf das Senden.</translation>
    </message>
    <message>
        <source>Picture {}.jpg</source>
        <translation>Bild {}.jpg</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures and details</source>
        <translation>Bilder und Details</translation>
    </message>
    <message>
        <source>Pictures and details of the videos, or names alone</source>
        <translation>Bilder und Details der Videos oder nur Namen</translation>
    </message>
    <message>
        <source>Pictures of the video over its bar</source>
        <translation>Bilder des Videos über seiner Leiste</translation>
    </message>
    <message>
        <source>Pictures per second of the scene; leave it empty for the video's own</source>
        <translation>Bilder je Sekunde der Szene; leer lassen für die eigene Rate des Videos</translation>
    </message>
    <message>
        <source>Pictures saved Successfully!</source>
        <translation>Bilder gespeichert!</translation>
    </message>
    <message>
        <source>Pictures side by side (1 to 4)</source>
        <translation>Bilder nebeneinander (1 bis 4)</translation>
    </message>
    <message>
        <source>Pictures that come raw are compressed as the video is saved</source>
        <translation>Bilder, die roh kommen, werden beim Speichern komprimiert</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play / Pause (Space or P)</source>
        <translation>Abspielen / Pause (Leertaste oder P)</translation>
    </message>
    <message>
        <source>Play / Pause All Videos</source>
        <translation>Alle abspielen / Pause</translation>
    </message>
    <message>
        <source>Play Backward</source>
        <translation>Rückwärts abspielen</translation>
    </message>
    <message>
        <source>Play From Here</source>
        <translation>Ab hier abspielen</translation>
    </message>
    <message>
        <source>Play It</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play Up To Here</source>
        <translation>Bis hier abspielen</translation>
    </message>
    <message>
        <source>Play Whole Video</source>
        <translation>Ganzes Video abspielen</translation>
    </message>
    <message>
        <source>Play all of them with Windows Media Player</source>
        <translation>Alle mit Windows Media Player abspielen</translation>
    </message>
    <message>
        <source>Play or pause (P)</source>
        <translation>Abspielen oder Pause (P)</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Abspielen oder Pause (Leertaste)</translation>
    </message>
    <message>
        <source>Play or pause video %1</source>
        <translation>Video %1 abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Play per Month</source>
        <translation>Spiele im Monat</translation>
    </message>
    <message>
        <source>Play the locked videos again and again</source>
        <translation>Gekoppelte Videos immer wieder abspielen</translation>
    </message>
    <message>
        <source>Play the locked videos together</source>
        <translation>Gekoppelte Videos gemeinsam abspielen</translation>
    </message>
    <message>
        <source>Play the part that is marked (Space)</source>
        <translation>Den markierten Teil abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Play what is kept (Space)</source>
        <translation>Abspielen, was bleibt (Leertaste)</translation>
    </message>
    <message>
        <source>Play what the clip will show</source>
        <translation>Abspielen, was der Clip zeigt</translation>
    </message>
    <message>
        <source>Please enter the name of this macro</source>
        <translation>Bitte geben Sie dem Makro einen Namen</translation>
    </message>
    <message>
        <source>Please wait until the operation under way has finished.</source>
        <translation>Bitte warten Sie, bis der laufende Vorgang fertig ist.</translation>
    </message>
    <message>
        <source>Plus Sign</source>
        <translation>Pluszeichen</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Stelle im Video</translation>
    </message>
    <message>
        <source>Positions of the locked videos</source>
        <translation>Stellen der gekoppelten Videos</translation>
    </message>
    <message>
        <source>Practice per Month</source>
        <translation>Training im Monat</translation>
    </message>
    <message>
        <source>Preparing email</source>
        <translation>Mail wird vorbereitet</translation>
    </message>
    <message>
        <source>Preparing to Capture</source>
        <translation>Aufnahme wird vorbereitet</translation>
    </message>
    <message>
        <source>Preparing to Record....</source>
        <translation>Aufnahme wird vorbereitet....</translation>
    </message>
    <message>
        <source>Preparing to Record.... without a voice</source>
        <translation>Aufnahme wird vorbereitet.... ohne Stimme</translation>
    </message>
    <message>
        <source>Press "Start Sound Capture" to start monitoring for sound.</source>
        <translation>"Auf Ton warten" beginnt, auf einen Ton zu warten.</translation>
    </message>
    <message>
        <source>Press "Start to Monitor" to start monitoring.</source>
        <translation>"Beobachten" beginnt die Beobachtung.</translation>
    </message>
    <message>
        <source>Preview and Print...</source>
        <translation>Vorschau und Druck...</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print All Windows</source>
        <translation>Alle Fenster drucken</translation>
    </message>
    <message>
        <source>Print Bunker Shot</source>
        <translation>Bunkerschlag drucken</translation>
    </message>
    <message>
        <source>Print Chip Shot</source>
        <translation>Chip drucken</translation>
    </message>
    <message>
        <source>Print Distance Wedge</source>
        <translation>Weitschlag drucken</translation>
    </message>
    <message>
        <source>Print Done</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>Print Highlighted Window</source>
        <translation>Markiertes Fenster drucken</translation>
    </message>
    <message>
        <source>Print Preview - %1</source>
        <translation>Druckvorschau - %1</translation>
    </message>
    <message>
        <source>Print Putting</source>
        <translation>Putten drucken</translation>
    </message>
    <message>
        <source>Print Video(s)</source>
        <translation>Video(s) drucken</translation>
    </message>
    <message>
        <source>Print Window with Notes</source>
        <translation>Fenster mit Notizen drucken</translation>
    </message>
    <message>
        <source>Print the logo on printouts</source>
        <translation>Das Logo auf Ausdrucke drucken</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Prints the notes alone</source>
        <translation>Druckt nur die Notizen</translation>
    </message>
    <message>
        <source>Processes complete</source>
        <translation>Alles fertig</translation>
    </message>
    <message>
        <source>Processing Video...</source>
        <translation>Video wird verarbeitet...</translation>
    </message>
    <message>
        <source>Processor Speed</source>
        <translation>Prozessortakt</translation>
    </message>
    <message>
        <source>Profile Fields</source>
        <translation>Profilfelder</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Program Setup</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Put the tool down</source>
        <translation>Werkzeug weglegen</translation>
    </message>
    <message>
        <source>Put the window away</source>
        <translation>Fenster verkleinern</translation>
    </message>
    <message>
        <source>Quad</source>
        <translation>Vier</translation>
    </message>
    <message>
        <source>Quad Screen</source>
        <translation>Vier Fenster</translation>
    </message>
    <message>
        <source>Quick Launch</source>
        <translation>Schnellstart</translation>
    </message>
    <message>
        <source>Quick Launch +</source>
        <translation>Schnellstart +</translation>
    </message>
    <message>
        <source>Quick Launch -</source>
        <translation>Schnellstart -</translation>
    </message>
    <message>
        <source>Quick Launch keeps videos, no {}.</source>
        <translation>Schnellstart enthält nur Videos, keine {}.</translation>
    </message>
    <message>
        <source>R - Rewind Video</source>
        <translation>R - An den Anfang</translation>
    </message>
    <message>
        <source>R/L Handed</source>
        <translation>Rechts-/Linkshänder</translation>
    </message>
    <message>
        <source>Random colors, one after the other</source>
        <translation>Zufällige Farben der Reihe nach</translation>
    </message>
    <message>
        <source>Reading from specified Removeable disk. Please Wait....</source>
        <translation>Der Wechseldatenträger wird gelesen. Bitte warten....</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Liest</translation>
    </message>
    <message>
        <source>Reads the disc back and compares it</source>
        <translation>Liest die Disc zurück und vergleicht sie</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Ready to Burn CD?</source>
        <translation>Bereit, die CD zu brennen?</translation>
    </message>
    <message>
        <source>Ready to Record Lesson</source>
        <translation>Bereit zur Aufnahme der Lektion</translation>
    </message>
    <message>
        <source>Ready to Record Video</source>
        <translation>Bereit zur Aufnahme</translation>
    </message>
    <message>
        <source>Recompress</source>
        <translation>Neu komprimieren</translation>
    </message>
    <message>
        <source>Record Lesson</source>
        <translation>Lektion aufnehmen</translation>
    </message>
    <message>
        <source>Record Voice</source>
        <translation>Stimme aufnehmen</translation>
    </message>
    <message>
        <source>Recording Complete!</source>
        <translation>Aufnahme fertig!</translation>
    </message>
    <message>
        <source>Recording Complete....</source>
        <translation>Aufnahme fertig....</translation>
    </message>
    <message>
        <source>Recording Paused</source>
        <translation>Aufnahme pausiert</translation>
    </message>
    <message>
        <source>Recording Sound and Video</source>
        <translation>Ton und Bild werden aufgenommen</translation>
    </message>
    <message>
        <source>Recording cancelled...</source>
        <translation>Aufnahme abgebrochen...</translation>
    </message>
    <message>
        <source>Recording....</source>
        <translation>Aufnahme läuft....</translation>
    </message>
    <message>
        <source>Recording.... without a voice</source>
        <translation>Aufnahme läuft.... ohne Stimme</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo (Ctrl+Shift+Z)</source>
        <translation>Wiederholen (Strg+Umschalt+Z)</translation>
    </message>
    <message>
        <source>Redock the Play Bar</source>
        <translation>Leiste andocken</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Auffrischen</translation>
    </message>
    <message>
        <source>Remembers %1 of %2 s, %3 of %4 MiB</source>
        <translation>Merkt sich %1 von %2 s, %3 von %4 MiB</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove All Zones</source>
        <translation>Alle Zonen entfernen</translation>
    </message>
    <message>
        <source>Remove Mark</source>
        <translation>Marke entfernen</translation>
    </message>
    <message>
        <source>Remove Zone	Del</source>
        <translation>Zone entfernen	Entf</translation>
    </message>
    <message>
        <source>Remove macro</source>
        <translation>Makro entfernen</translation>
    </message>
    <message>
        <source>Remove the macro "{}"?</source>
        <translation>Das Makro "{}" entfernen?</translation>
    </message>
    <message>
        <source>Removes the macro from the list</source>
        <translation>Entfernt das Makro aus der Liste</translation>
    </message>
    <message>
        <source>Removing video from program!</source>
        <translation>Video wird aus dem Programm entfernt!</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rename Instructor or Database</source>
        <translation>Trainer oder Datenbank umbenennen</translation>
    </message>
    <message>
        <source>Rename Video</source>
        <translation>Video umbenennen</translation>
    </message>
    <message>
        <source>Rename cancelled.</source>
        <translation>Umbenennen abgebrochen.</translation>
    </message>
    <message>
        <source>Rename the current instructor or database</source>
        <translation>Diesen Trainer oder diese Datenbank umbenennen</translation>
    </message>
    <message>
        <source>Rename the current video.</source>
        <translation>Dieses Video umbenennen.</translation>
    </message>
    <message>
        <source>Rename the current {}.</source>
        <translation>{} umbenennen.</translation>
    </message>
    <message>
        <source>Rename {}</source>
        <translation>{} umbenennen</translation>
    </message>
    <message>
        <source>Reopen (Ctrl+Shift+T)</source>
        <translation>Wieder öffnen (Strg+Umschalt+T)</translation>
    </message>
    <message>
        <source>Reopen Closed Videos</source>
        <translation>Geschlossene wieder öffnen</translation>
    </message>
    <message>
        <source>Reopen closed videos</source>
        <translation>Geschlossene Videos wieder öffnen</translation>
    </message>
    <message>
        <source>Report - %1</source>
        <translation>Bericht - %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Reset to Default?</source>
        <translation>Zurücksetzen?</translation>
    </message>
    <message>
        <source>Retry Connection</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Reverse Field Order</source>
        <translation>Halbbilder vertauschen</translation>
    </message>
    <message>
        <source>Reverse fields</source>
        <translation>Halbbilder vertauschen</translation>
    </message>
    <message>
        <source>Rewind (Up Arrow)</source>
        <translation>An den Anfang (Pfeil auf)</translation>
    </message>
    <message>
        <source>Rewind All Videos</source>
        <translation>Alle an den Anfang</translation>
    </message>
    <message>
        <source>Rewind the locked videos</source>
        <translation>Gekoppelte Videos an den Anfang</translation>
    </message>
    <message>
        <source>Rewind video %1</source>
        <translation>Video %1 an den Anfang</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Right Arrow - Next Frame</source>
        <translation>Pfeil rechts - Nächstes Bild</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Right arrow key</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Row of pictures</source>
        <translation>Bilderreihe</translation>
    </message>
    <message>
        <source>Ruby Red</source>
        <translation>Rubinrot</translation>
    </message>
    <message>
        <source>Run System Test</source>
        <translation>Systemtest starten</translation>
    </message>
    <message>
        <source>Run video %1 in a loop</source>
        <translation>Video %1 immer wieder abspielen</translation>
    </message>
    <message>
        <source>S - Speed Toggle</source>
        <translation>S - Zeitlupe</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save %1 Videos</source>
        <translation>%1 Videos speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Save Bitmap</source>
        <translation>Bitmap speichern</translation>
    </message>
    <message>
        <source>Save Bunker Shot Bmps</source>
        <translation>Bunkerschlag-Bilder speichern</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Aufnahme speichern</translation>
    </message>
    <message>
        <source>Save Chip Shot Bmps</source>
        <translation>Chip-Bilder speichern</translation>
    </message>
    <message>
        <source>Save Distance Wedge Bmps</source>
        <translation>Weitschlag-Bilder speichern</translation>
    </message>
    <message>
        <source>Save Drawing Macro</source>
        <translation>Als Makro speichern</translation>
    </message>
    <message>
        <source>Save Drawings and Notes</source>
        <translation>Zeichnungen und Notizen speichern</translation>
    </message>
    <message>
        <source>Save It</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Lektion speichern</translation>
    </message>
    <message>
        <source>Save Notes</source>
        <translation>Notizen speichern</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Bild speichern...</translation>
    </message>
    <message>
        <source>Save Putting Bmps</source>
        <translation>Putt-Bilder speichern</translation>
    </message>
    <message>
        <source>Save Video</source>
        <translation>Video speichern</translation>
    </message>
    <message>
        <source>Save Video with Drawings</source>
        <translation>Video mit Zeichnungen speichern</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern...</translation>
    </message>
    <message>
        <source>Save or cancel the trim first, then add videos.</source>
        <translation>Zuerst den Schnitt speichern oder abbrechen, dann Videos hinzufügen.</translation>
    </message>
    <message>
        <source>Save writes over the video itself: the frames outside cannot be brought back. An MP4 or MOV may keep a few of them in the file, hidden, because others are built on them.</source>
        <translation>Speichern schreibt über das Video selbst: Die Bilder außerhalb sind nicht zurückzuholen. Ein MP4 oder MOV behält womöglich einige davon versteckt in der Datei, weil andere auf ihnen aufbauen.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Saved: all {} videos</source>
        <translation>Gespeichert: alle {} Videos</translation>
    </message>
    <message>
        <source>Saved: {}</source>
        <translation>Gespeichert: {}</translation>
    </message>
    <message>
        <source>Saves the recording and opens it in the analysis section (Return)</source>
        <translation>Speichert die Aufnahme und öffnet sie in der Analyse (Eingabetaste)</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %</source>
        <translation>"%1" wird gespeichert, %2 %</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %; %3 others wait</source>
        <translation>"%1" wird gespeichert, %2 %; %3 weitere warten</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %; another one waits</source>
        <translation>"%1" wird gespeichert, %2 %; noch eines wartet</translation>
    </message>
    <message>
        <source>Saving Video</source>
        <translation>Video wird gespeichert</translation>
    </message>
    <message>
        <source>Saving Video.... Please Wait.</source>
        <translation>Video wird gespeichert.... Bitte warten.</translation>
    </message>
    <message>
        <source>Saving cancelled. Click Save Video to continue..</source>
        <translation>Speichern abgebrochen. Klicken Sie auf Video speichern..</translation>
    </message>
    <message>
        <source>Screen Mode</source>
        <translation>Bildschirmgröße</translation>
    </message>
    <message>
        <source>Seconds to capture</source>
        <translation>Sekunden Aufnahme</translation>
    </message>
    <message>
        <source>Seconds to wait</source>
        <translation>Sekunden Wartezeit</translation>
    </message>
    <message>
        <source>Seen When</source>
        <translation>Wann zu sehen</translation>
    </message>
    <message>
        <source>Seen at its first mark, or at the mark that has the name of the present one</source>
        <translation>Gezeigt an seiner ersten Marke oder an der Marke, die heißt wie die jetzige</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Select Default Capture Method</source>
        <translation>Übliche Art der Aufnahme</translation>
    </message>
    <message>
        <source>Select a %1 to see the lessons.</source>
        <translation>Wählen Sie %1, um die Lektionen zu sehen.</translation>
    </message>
    <message>
        <source>Select a drive or folder for your videos.</source>
        <translation>Wählen Sie ein Laufwerk oder einen Ordner für Ihre Videos.</translation>
    </message>
    <message>
        <source>Select a window first</source>
        <translation>Wählen Sie zuerst ein Fenster</translation>
    </message>
    <message>
        <source>Select an Instructor or Database</source>
        <translation>Trainer oder Datenbank wählen</translation>
    </message>
    <message>
        <source>Select an instructor, a %1 and the videos on one side, then choose Export or Import. Each video takes its drawings and notes along, and a %1 who is new on the other side brings the profile. Videos from a plain folder, shown under General Folder, come to the %1 chosen in this library.</source>
        <translation>Wählen Sie auf einer Seite Trainer, %1 und die Videos, dann Exportieren oder Importieren. Jedes Video nimmt seine Zeichnungen und Notizen mit, und wer auf der anderen Seite neu ist (%1), bringt das Profil mit. Videos aus einem einfachen Ordner, gezeigt unter Allgemeiner Ordner, kommen hierhin (%1).</translation>
    </message>
    <message>
        <source>Select the %1 name. This will allow the program to automatically add the %1 email address.</source>
        <translation>Wählen Sie den Namen (%1). Dann fügt das Programm die E-Mail-Adresse (%1) von selbst ein.</translation>
    </message>
    <message>
        <source>Select the %1 who is to get the videos first.</source>
        <translation>Wählen Sie zuerst, wer die Videos bekommt (%1).</translation>
    </message>
    <message>
        <source>Select the Database and the {} that you want to move the video to and click the "Move" button.</source>
        <translation>Wählen Sie, wohin das Video kommt (Datenbank und {}), und klicken Sie auf "Verschieben".</translation>
    </message>
    <message>
        <source>Select the Database and the {} that you want to move the videos to and click the "Move" button.</source>
        <translation>Wählen Sie, wohin die Videos kommen (Datenbank und {}), und klicken Sie auf "Verschieben".</translation>
    </message>
    <message>
        <source>Select the Database from the list on the left that you want to move the selected {} to and click the "Move" button.</source>
        <translation>Wählen Sie links die Datenbank, in die der Eintrag soll ({}), und klicken Sie auf "Verschieben".</translation>
    </message>
    <message>
        <source>Select the path to store your videos.</source>
        <translation>Wählen Sie den Ordner für Ihre Videos.</translation>
    </message>
    <message>
        <source>Select the {} who is to get the videos first.</source>
        <translation>Wählen Sie zuerst, wer die Videos bekommt ({}).</translation>
    </message>
    <message>
        <source>Select this %1</source>
        <translation>%1 wählen</translation>
    </message>
    <message>
        <source>Select your Video Camera folder</source>
        <translation>Wählen Sie den Ordner Ihrer Kamera</translation>
    </message>
    <message>
        <source>Select {}</source>
        <translation>{} wählen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Selected video successfully moved.</source>
        <translation>Das gewählte Video wurde verschoben.</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Send Email with Lessons and Videos</source>
        <translation>Mail mit Lektionen und Videos senden</translation>
    </message>
    <message>
        <source>Send Email(s)</source>
        <translation>Mail(s) senden</translation>
    </message>
    <message>
        <source>Send Lesson</source>
        <translation>Lektion senden</translation>
    </message>
    <message>
        <source>Send Pictures to %1</source>
        <translation>Bilder an %1 senden</translation>
    </message>
    <message>
        <source>Send Successful!</source>
        <translation>Gesendet!</translation>
    </message>
    <message>
        <source>Send Successful!
{}</source>
        <translation>Gesendet!
{}</translation>
    </message>
    <message>
        <source>Send Videos to Email Addresses</source>
        <translation>Videos an E-Mail-Adressen senden</translation>
    </message>
    <message>
        <source>Send Videos to Web Server</source>
        <translation>Videos auf den Webserver senden</translation>
    </message>
    <message>
        <source>Send a Test Mail</source>
        <translation>Testmail senden</translation>
    </message>
    <message>
        <source>Send current video to the analysis section.</source>
        <translation>Dieses Video zur Analyse senden.</translation>
    </message>
    <message>
        <source>Send the {} selected videos to the analysis section.</source>
        <translation>Die {} gewählten Videos zur Analyse senden.</translation>
    </message>
    <message>
        <source>Send to Analysis</source>
        <translation>Zur Analyse senden</translation>
    </message>
    <message>
        <source>Send to Web</source>
        <translation>Ins Web senden</translation>
    </message>
    <message>
        <source>Sending current video to Analysis...</source>
        <translation>Dieses Video wird zur Analyse gesendet...</translation>
    </message>
    <message>
        <source>Sending email now....Please wait</source>
        <translation>Mail wird gesendet....Bitte warten</translation>
    </message>
    <message>
        <source>Sending email...</source>
        <translation>Mail wird gesendet...</translation>
    </message>
    <message>
        <source>Sending last saved to Analysis...</source>
        <translation>Letztes Video wird zur Analyse gesendet...</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>Sensitivity of the hot zones</source>
        <translation>Empfindlichkeit der Zonen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Sequence of Frames every</source>
        <translation>Bildfolge alle</translation>
    </message>
    <message>
        <source>Server for model videos</source>
        <translation>Server für Modellvideos</translation>
    </message>
    <message>
        <source>Server for updates</source>
        <translation>Server für Updates</translation>
    </message>
    <message>
        <source>Set Automatic Import Folder</source>
        <translation>Importordner festlegen</translation>
    </message>
    <message>
        <source>Set Camera Default Folder</source>
        <translation>Kameraordner festlegen</translation>
    </message>
    <message>
        <source>Set End Point</source>
        <translation>Ende setzen</translation>
    </message>
    <message>
        <source>Set Start Point</source>
        <translation>Anfang setzen</translation>
    </message>
    <message>
        <source>Set Zero Point</source>
        <translation>Nullpunkt setzen</translation>
    </message>
    <message>
        <source>Set as Camera %1</source>
        <translation>Als Kamera %1 merken</translation>
    </message>
    <message>
        <source>Set the ruler for speeds along the path.</source>
        <translation>Eichen Sie das Lineal für Tempo an der Spur.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Shade Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Shaft &amp; path</source>
        <translation>Schaft und Bahn</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Weitergeben</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Short term Goals</source>
        <translation>Nahe Ziele</translation>
    </message>
    <message>
        <source>Short-game video names</source>
        <translation>Videonamen des kurzen Spiels</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Show Grid</source>
        <translation>Gitter zeigen</translation>
    </message>
    <message>
        <source>Show Stats</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Show Video &amp;Notes</source>
        <translation>&amp;Notizen zum Video</translation>
    </message>
    <message>
        <source>Show Video Notes</source>
        <translation>Notizen zum Video</translation>
    </message>
    <message>
        <source>Show Video Timer</source>
        <translation>Zeitmesser zeigen</translation>
    </message>
    <message>
        <source>Show complete profile and notes.</source>
        <translation>Ganzes Profil und Notizen zeigen.</translation>
    </message>
    <message>
        <source>Show field by field</source>
        <translation>Halbbild für Halbbild zeigen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Show lines in</source>
        <translation>Linien zeigen in</translation>
    </message>
    <message>
        <source>Show the Report</source>
        <translation>Bericht zeigen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Passwort zeigen</translation>
    </message>
    <message>
        <source>Show video statistics.</source>
        <translation>Angaben zum Video zeigen.</translation>
    </message>
    <message>
        <source>Showing</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Shown now, {}</source>
        <translation>Gerade gezeigt, {}</translation>
    </message>
    <message>
        <source>Shows the folder of these videos</source>
        <translation>Zeigt den Ordner dieser Videos</translation>
    </message>
    <message>
        <source>Shows the student as in a mirror, or as others see her; drawings and zones turn too (F)</source>
        <translation>Zeigt, wie man sich im Spiegel sieht oder wie andere es sehen; Zeichnungen und Zonen drehen mit (F)</translation>
    </message>
    <message>
        <source>Shows the two fields of interlaced pictures in the other order</source>
        <translation>Zeigt die beiden Halbbilder in der anderen Reihenfolge</translation>
    </message>
    <message>
        <source>Sides cut off</source>
        <translation>Seiten abgeschnitten</translation>
    </message>
    <message>
        <source>Silver Blue</source>
        <translation>Silber-Blau</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Eins</translation>
    </message>
    <message>
        <source>Single Screen</source>
        <translation>Ein Fenster</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Sechs</translation>
    </message>
    <message>
        <source>Six Windows</source>
        <translation>Sechs Fenster</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size of the letters</source>
        <translation>Größe der Schrift</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Größe des Bildes</translation>
    </message>
    <message>
        <source>Size of the piece</source>
        <translation>Größe des Ausschnitts</translation>
    </message>
    <message>
        <source>Slow Motion, Sound, Strobe and Grid</source>
        <translation>Zeitlupe, Ton, Strobe und Gitter</translation>
    </message>
    <message>
        <source>Slow motion (S)</source>
        <translation>Zeitlupe (S)</translation>
    </message>
    <message>
        <source>Slow motion of video %1</source>
        <translation>Zeitlupe für Video %1</translation>
    </message>
    <message>
        <source>Slow motion speed</source>
        <translation>Tempo der Zeitlupe</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Software Version %1</source>
        <translation>Programmversion %1</translation>
    </message>
    <message>
        <source>Some of the pictures could not be deleted.</source>
        <translation>Einige Bilder konnten nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Somebody else has renamed, moved or deleted the video "{}". Its drawings and notes are kept in {}.</source>
        <translation>Jemand hat das Video "{}" umbenannt, verschoben oder gelöscht. Seine Zeichnungen und Notizen liegen in {}.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sound Level Reached... Finishing Video Capture</source>
        <translation>Lautstärke erreicht... Aufnahme wird beendet</translation>
    </message>
    <message>
        <source>Sound at full speed: %1 %</source>
        <translation>Ton bei vollem Tempo: %1 %</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Ton ist aus</translation>
    </message>
    <message>
        <source>Sound of the video</source>
        <translation>Ton des Videos</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Space on CD</source>
        <translation>Platz auf der CD</translation>
    </message>
    <message>
        <source>Speak while it plays.</source>
        <translation>Sprechen Sie, während es spielt.</translation>
    </message>
    <message>
        <source>Speak while the clip plays: your voice goes into it in place of its sound</source>
        <translation>Sprechen Sie, während der Clip spielt: Ihre Stimme kommt statt seines Tons hinein</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed ([ and ]); the wheel turns it</source>
        <translation>Tempo ([ und ]); das Mausrad dreht es</translation>
    </message>
    <message>
        <source>Speed of the common play</source>
        <translation>Tempo des gemeinsamen Abspielens</translation>
    </message>
    <message>
        <source>Speed of the loop (S)</source>
        <translation>Tempo der Schleife (S)</translation>
    </message>
    <message>
        <source>Speeds at {:.4g} pictures a second. Slow motion? Setup, True Frame Rate...</source>
        <translation>Tempo bei {:.4g} Bildern je Sekunde. Zeitlupe? Einrichten, Wahre Bildrate...</translation>
    </message>
    <message>
        <source>Speeds beside paths</source>
        <translation>Tempo neben Spuren</translation>
    </message>
    <message>
        <source>Split Screen</source>
        <translation>Geteiltes Bild</translation>
    </message>
    <message>
        <source>Split Video Fields</source>
        <translation>Halbbilder trennen</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Squares across the picture</source>
        <translation>Felder über das Bild</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
    <message>
        <source>Stand at drawings</source>
        <translation>Bei Zeichnungen stehen</translation>
    </message>
    <message>
        <source>Stand still (Space); Left and Right step</source>
        <translation>Stillstehen (Leertaste); Pfeil links und rechts gehen bildweise</translation>
    </message>
    <message>
        <source>Standard Values</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Standard of the cameras</source>
        <translation>Norm der Kameras</translation>
    </message>
    <message>
        <source>Start Auto Import</source>
        <translation>Autoimport starten</translation>
    </message>
    <message>
        <source>Start Beep Capture</source>
        <translation>Tonstart beginnen</translation>
    </message>
    <message>
        <source>Start Capture</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Hier beginnen</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Start Sound Capture</source>
        <translation>Auf Ton warten</translation>
    </message>
    <message>
        <source>Start Writing to CD?</source>
        <translation>Mit dem Schreiben auf CD beginnen?</translation>
    </message>
    <message>
        <source>Start at %1</source>
        <translation>Beginn bei %1</translation>
    </message>
    <message>
        <source>Start at %1   End at %2   %3 of %4 frames</source>
        <translation>Anfang bei %1   Ende bei %2   %3 von %4 Bildern</translation>
    </message>
    <message>
        <source>Start at {}</source>
        <translation>Start bei {}</translation>
    </message>
    <message>
        <source>Start time %1</source>
        <translation>Anfang bei %1</translation>
    </message>
    <message>
        <source>Start to Monitor</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Start-Stop</source>
        <translation>Start-Stopp</translation>
    </message>
    <message>
        <source>Starting the camera...</source>
        <translation>Die Kamera wird gestartet...</translation>
    </message>
    <message>
        <source>Starting to burn CD</source>
        <translation>CD wird gebrannt</translation>
    </message>
    <message>
        <source>Stats Off</source>
        <translation>Ohne Angaben</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Bild vor</translation>
    </message>
    <message>
        <source>Step 1) Convert videos for email.</source>
        <translation>Schritt 1) Videos für die Mail umwandeln.</translation>
    </message>
    <message>
        <source>Step 1) Convert videos for the web.</source>
        <translation>Schritt 1) Videos für das Web umwandeln.</translation>
    </message>
    <message>
        <source>Step 2) Prepare to send.</source>
        <translation>Schritt 2) Senden vorbereiten.</translation>
    </message>
    <message>
        <source>Step 2) Upload videos to the web.</source>
        <translation>Schritt 2) Videos ins Web laden.</translation>
    </message>
    <message>
        <source>Step 3) Create and Send email(s).</source>
        <translation>Schritt 3) Mail(s) erstellen und senden.</translation>
    </message>
    <message>
        <source>Step Back</source>
        <translation>Bild zurück</translation>
    </message>
    <message>
        <source>Stick man</source>
        <translation>Strichmann</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop Auto Import</source>
        <translation>Autoimport beenden</translation>
    </message>
    <message>
        <source>Stop Beep Capture</source>
        <translation>Tonstart beenden</translation>
    </message>
    <message>
        <source>Stop Capture</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Stop Monitoring</source>
        <translation>Beobachtung beenden</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Stop Sound Capture</source>
        <translation>Tonaufnahme beenden</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Nicht mehr warten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Stored by</source>
        <translation>Gespeichert von</translation>
    </message>
    <message>
        <source>Strengths</source>
        <translation>Stärken</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>Strobe</translation>
    </message>
    <message>
        <source>Strobe Frames</source>
        <translation>Bilder strobieren</translation>
    </message>
    <message>
        <source>Strobe Video</source>
        <translation>Video strobieren</translation>
    </message>
    <message>
        <source>Strobe a video first</source>
        <translation>Strobieren Sie zuerst ein Video</translation>
    </message>
    <message>
        <source>Student</source>
        <translation>Schüler</translation>
    </message>
    <message>
        <source>Student Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Student Profiles - Home key</source>
        <translation>Pos1 - Profile</translation>
    </message>
    <message>
        <source>Students</source>
        <translation>Schüler</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>Subject of your mails</source>
        <translation>Betreff Ihrer Mails</translation>
    </message>
    <message>
        <source>Swap the two fields</source>
        <translation>Die beiden Halbbilder vertauschen</translation>
    </message>
    <message>
        <source>Swing path</source>
        <translation>Schwungbahn</translation>
    </message>
    <message>
        <source>System Ram</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>System Test</source>
        <translation>Systemtest</translation>
    </message>
    <message>
        <source>Take all of the video again</source>
        <translation>Wieder das ganze Video nehmen</translation>
    </message>
    <message>
        <source>Take all videos of all %1 of the current database</source>
        <translation>Alle Videos aller %1 dieser Datenbank nehmen</translation>
    </message>
    <message>
        <source>Take this name (Return)</source>
        <translation>Diesen Namen nehmen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Take up a drawing tool, or click a drawing, to choose its color</source>
        <translation>Nehmen Sie ein Zeichenwerkzeug oder klicken Sie auf eine Zeichnung, um die Farbe zu wählen</translation>
    </message>
    <message>
        <source>Takes a picture that was added off the list</source>
        <translation>Nimmt ein hinzugefügtes Bild aus der Liste</translation>
    </message>
    <message>
        <source>Takes figures and the numbers of zones off the picture</source>
        <translation>Nimmt Werte und Zonennummern vom Bild</translation>
    </message>
    <message>
        <source>Takes the chosen files out of this list (Delete). The files themselves stay.</source>
        <translation>Nimmt die gewählten Dateien aus dieser Liste (Entf). Die Dateien selbst bleiben.</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Telephone http://192.168.0.20:8080/video</source>
        <translation>Telefon http://192.168.0.20:8080/video</translation>
    </message>
    <message>
        <source>Tell that server that Kinalyx is used</source>
        <translation>Dem Server sagen, dass Kinalyx benutzt wird</translation>
    </message>
    <message>
        <source>Test Connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <source>Test Drive</source>
        <translation>Laufwerk prüfen</translation>
    </message>
    <message>
        <source>Test Send Successful! A test email has been sent to {}.</source>
        <translation>Testmail gesendet! Eine Testmail ging an {}.</translation>
    </message>
    <message>
        <source>Test Video Display rate</source>
        <translation>Bildrate des Schirms prüfen</translation>
    </message>
    <message>
        <source>Testing Kinalyx Email</source>
        <translation>Test der Kinalyx-Mail</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Files, words alone (*.txt)|*.txt|Web Pages, with bold, italic and sizes (*.html)|*.html</source>
        <translation>Textdateien, nur Worte (*.txt)|*.txt|Webseiten mit fett, kursiv und Größen (*.html)|*.html</translation>
    </message>
    <message>
        <source>Text in the name</source>
        <translation>Text im Namen</translation>
    </message>
    <message>
        <source>That name is not a file's.</source>
        <translation>Dieser Name ist keiner einer Datei.</translation>
    </message>
    <message>
        <source>The Database that you have chosen already contains a {} with the same name.</source>
        <translation>In der gewählten Datenbank gibt es den Namen schon ({}).</translation>
    </message>
    <message>
        <source>The Import Folder cannot be reached.... Waiting for it....</source>
        <translation>Der Importordner ist nicht zu erreichen.... Auf ihn wird gewartet....</translation>
    </message>
    <message>
        <source>The address could not be stored.</source>
        <translation>Die Adresse konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The address must begin with ftp://, ftps://, ftpes:// or sftp://.</source>
        <translation>Die Adresse muss mit ftp://, ftps://, ftpes:// oder sftp:// beginnen.</translation>
    </message>
    <message>
        <source>The address of the server holds a blank.</source>
        <translation>Die Adresse des Servers enthält ein Leerzeichen.</translation>
    </message>
    <message>
        <source>The address of the server is empty.</source>
        <translation>Die Adresse des Servers ist leer.</translation>
    </message>
    <message>
        <source>The addresses in the profile</source>
        <translation>Die Adressen im Profil</translation>
    </message>
    <message>
        <source>The camera cannot be opened.</source>
        <translation>Die Kamera lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>Die Kamera antwortet nicht.</translation>
    </message>
    <message>
        <source>The camera gave no picture then.</source>
        <translation>Damals gab die Kamera kein Bild.</translation>
    </message>
    <message>
        <source>The camera gave no picture.</source>
        <translation>Die Kamera gab kein Bild.</translation>
    </message>
    <message>
        <source>The camera gave no picture. Nothing was recorded.</source>
        <translation>Die Kamera gab kein Bild. Es wurde nichts aufgenommen.</translation>
    </message>
    <message>
        <source>The camera gives no picture.</source>
        <translation>Die Kamera gibt kein Bild.</translation>
    </message>
    <message>
        <source>The camera gives nothing any more.</source>
        <translation>Die Kamera gibt nichts mehr.</translation>
    </message>
    <message>
        <source>The camera gives nothing any more. Is it still plugged in?</source>
        <translation>Die Kamera gibt nichts mehr. Ist sie noch angeschlossen?</translation>
    </message>
    <message>
        <source>The camera has changed the size of its pictures.</source>
        <translation>Die Kamera hat die Größe ihrer Bilder geändert.</translation>
    </message>
    <message>
        <source>The camera has ended.</source>
        <translation>Die Kamera ist zu Ende.</translation>
    </message>
    <message>
        <source>The camera has no controls.</source>
        <translation>Die Kamera hat keine Regler.</translation>
    </message>
    <message>
        <source>The camera has no such control.</source>
        <translation>Die Kamera hat keinen solchen Regler.</translation>
    </message>
    <message>
        <source>The camera has no such value.</source>
        <translation>Die Kamera kennt diesen Wert nicht.</translation>
    </message>
    <message>
        <source>The camera has stopped: {}</source>
        <translation>Die Kamera hat angehalten: {}</translation>
    </message>
    <message>
        <source>The camera has this control in hand itself.</source>
        <translation>Die Kamera regelt dies selbst.</translation>
    </message>
    <message>
        <source>The camera is not there any more.</source>
        <translation>Die Kamera ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The camera is on the page Capture Videos. Leave that page, and it shows here again.</source>
        <translation>Die Kamera ist auf der Seite Videoaufnahme. Verlassen Sie die Seite, dann ist sie wieder hier zu sehen.</translation>
    </message>
    <message>
        <source>The camera may not be used: it wants a password.</source>
        <translation>Die Kamera ist nicht frei: Sie will ein Passwort.</translation>
    </message>
    <message>
        <source>The cameras are busy with another recording.</source>
        <translation>Die Kameras sind mit einer anderen Aufnahme beschäftigt.</translation>
    </message>
    <message>
        <source>The capture page has the camera. The mirror goes on when that page is left.</source>
        <translation>Die Aufnahmeseite hat die Kamera. Der Spiegel geht weiter, wenn die Seite verlassen wird.</translation>
    </message>
    <message>
        <source>The certificate with which "{}" proves who it is {}. Somebody else may be in between, so nothing was sent, and no password.</source>
        <translation>Das Zertifikat, mit dem sich "{}" ausweist, {}. Vielleicht steht jemand dazwischen; es wurde nichts gesendet, auch kein Passwort.</translation>
    </message>
    <message>
        <source>The certificates by which the {} "{}" is checked cannot be read.</source>
        <translation>Die Zertifikate, nach denen {} "{}" geprüft wird, sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The clip could not be opened.</source>
        <translation>Der Clip konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The clip is another one now: record your voice again.</source>
        <translation>Der Clip ist jetzt ein anderer: Nehmen Sie Ihre Stimme noch einmal auf.</translation>
    </message>
    <message>
        <source>The clip would replace its own video. Choose another name.</source>
        <translation>Der Clip würde sein eigenes Video ersetzen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The connection to the {} "{}" broke off.</source>
        <translation>Die Verbindung zu {} "{}" brach ab.</translation>
    </message>
    <message>
        <source>The current video has no marks</source>
        <translation>Dieses Video hat keine Marken</translation>
    </message>
    <message>
        <source>The current video was copied to the Quick Launch folder.</source>
        <translation>Dieses Video wurde in den Schnellstart-Ordner kopiert.</translation>
    </message>
    <message>
        <source>The current video was removed from the Quick Launch folder.</source>
        <translation>Dieses Video wurde aus dem Schnellstart-Ordner entfernt.</translation>
    </message>
    <message>
        <source>The current window</source>
        <translation>Dieses Fenster</translation>
    </message>
    <message>
        <source>The delayed mirror is shown</source>
        <translation>Der verzögerte Spiegel ist offen</translation>
    </message>
    <message>
        <source>The disc could not be erased.</source>
        <translation>Die Disc konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The disc could not be erased.{}</source>
        <translation>Die Disc konnte nicht gelöscht werden.{}</translation>
    </message>
    <message>
        <source>The disc could not be written.</source>
        <translation>Die Disc konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The disc has been written already and cannot be erased. Put in an empty one.</source>
        <translation>Die Disc ist schon beschrieben und kann nicht gelöscht werden. Legen Sie eine leere ein.</translation>
    </message>
    <message>
        <source>The disc has been written, but it cannot be read back. Do not give it away.{}</source>
        <translation>Die Disc ist geschrieben, lässt sich aber nicht zurücklesen. Geben Sie sie nicht weiter.{}</translation>
    </message>
    <message>
        <source>The disc has been written, but it differs from the files. Do not give it away.</source>
        <translation>Die Disc ist geschrieben, aber sie weicht von den Dateien ab. Geben Sie sie nicht weiter.</translation>
    </message>
    <message>
        <source>The disc has been written. It was not read back to the end.</source>
        <translation>Die Disc ist geschrieben. Sie wurde nicht ganz zurückgelesen.</translation>
    </message>
    <message>
        <source>The disc has too little room: {} MB of {} MB.</source>
        <translation>Die Disc hat zu wenig Platz: {} MB von {} MB.</translation>
    </message>
    <message>
        <source>The disc holds something already.</source>
        <translation>Die Disc enthält schon etwas.</translation>
    </message>
    <message>
        <source>The disc in the drive holds something already. Everything on it will be lost. Do you want to erase it?</source>
        <translation>Die Disc im Laufwerk enthält schon etwas. Alles darauf geht verloren. Möchten Sie sie löschen?</translation>
    </message>
    <message>
        <source>The disc libraries could not be started.</source>
        <translation>Die Disc-Bibliotheken ließen sich nicht starten.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <translation>Der Datenträger antwortet nicht.</translation>
    </message>
    <message>
        <source>The disk does not answer. The recording will be looked for at the next start.</source>
        <translation>Der Datenträger antwortet nicht. Die Aufnahme wird beim nächsten Start gesucht.</translation>
    </message>
    <message>
        <source>The disk does not keep it.</source>
        <translation>Der Datenträger behält es nicht.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The disk of the library has no room for it.</source>
        <translation>Der Datenträger der Bibliothek hat keinen Platz dafür.</translation>
    </message>
    <message>
        <source>The disk refuses to keep what you typed. It counts until Kinalyx closes, and is written with your next change.</source>
        <translation>Der Datenträger nimmt nicht an, was Sie eingegeben haben. Es gilt, bis Kinalyx schließt, und wird mit der nächsten Änderung geschrieben.</translation>
    </message>
    <message>
        <source>The disk refuses to keep what you typed. It counts until Kinalyx closes.</source>
        <translation>Der Datenträger nimmt nicht an, was Sie eingegeben haben. Es gilt, bis Kinalyx schließt.</translation>
    </message>
    <message>
        <source>The drawing is kept as a macro.</source>
        <translation>Die Zeichnung ist als Makro aufbewahrt.</translation>
    </message>
    <message>
        <source>The drawing was laid on the video, and is kept as a macro.</source>
        <translation>Die Zeichnung liegt auf dem Video und ist als Makro aufbewahrt.</translation>
    </message>
    <message>
        <source>The drawings and notes of "{}" could not be saved: {}. Would you like to try again?</source>
        <translation>Zeichnungen und Notizen von "{}" konnten nicht gespeichert werden: {}. Möchten Sie es noch einmal versuchen?</translation>
    </message>
    <message>
        <source>The drawings could not be kept as a macro. {}</source>
        <translation>Die Zeichnungen konnten nicht als Makro gespeichert werden. {}</translation>
    </message>
    <message>
        <source>The drawings of this window are copied</source>
        <translation>Die Zeichnungen dieses Fensters werden kopiert</translation>
    </message>
    <message>
        <source>The drive cannot write this disc.{}</source>
        <translation>Das Laufwerk kann diese Disc nicht schreiben.{}</translation>
    </message>
    <message>
        <source>The drive cannot write this kind of disc.</source>
        <translation>Diese Art von Disc kann das Laufwerk nicht schreiben.</translation>
    </message>
    <message>
        <source>The drive could not be opened. Perhaps another program uses it or shows its disc: close that, and try again.</source>
        <translation>Das Laufwerk ließ sich nicht öffnen. Vielleicht benutzt es ein anderes Programm oder zeigt seine Disc: Schließen Sie das, und versuchen Sie es wieder.</translation>
    </message>
    <message>
        <source>The drive did not keep what it was given.</source>
        <translation>Das Laufwerk hat nicht behalten, was es bekam.</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive does not answer. Choose another folder.</source>
        <translation>Das Laufwerk antwortet nicht. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The drive does not answer. It was left to itself.</source>
        <translation>Das Laufwerk antwortet nicht. Es bleibt sich selbst überlassen.</translation>
    </message>
    <message>
        <source>The drive does not come to rest.</source>
        <translation>Das Laufwerk kommt nicht zur Ruhe.</translation>
    </message>
    <message>
        <source>The drive does not stop. It is left to itself.</source>
        <translation>Das Laufwerk hört nicht auf. Es bleibt sich selbst überlassen.</translation>
    </message>
    <message>
        <source>The drive has gone.</source>
        <translation>Das Laufwerk ist weg.</translation>
    </message>
    <message>
        <source>The drive is not answering.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive of the library does not answer.</source>
        <translation>Das Laufwerk der Bibliothek antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive of the notes does not answer.</source>
        <translation>Das Laufwerk der Notizen antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive of the student's folder does not answer.</source>
        <translation>Das Laufwerk mit dem Ordner antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with "%1" does not answer.</source>
        <translation>Das Laufwerk mit "%1" antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with the data folder does not answer.</source>
        <translation>Das Laufwerk mit dem Datenordner antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with the file {} is not answering. The old picture stays.</source>
        <translation>Das Laufwerk mit der Datei {} antwortet nicht. Das alte Bild bleibt.</translation>
    </message>
    <message>
        <source>The drive with the folder {} is not answering yet. It may be switched off, or out of reach.

As soon as it answers, the program goes on.</source>
        <translation>Das Laufwerk mit dem Ordner {} antwortet noch nicht. Vielleicht ist es ausgeschaltet oder nicht zu erreichen.

Sobald es antwortet, geht das Programm weiter.</translation>
    </message>
    <message>
        <source>The drive with the video library at {} is not answering.</source>
        <translation>Das Laufwerk mit der Videobibliothek in {} antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with the video library is not answering.</source>
        <translation>Das Laufwerk mit der Videobibliothek antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with the videos is not answering.</source>
        <translation>Das Laufwerk mit den Videos antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with the videos is not answering. No videos were copied.</source>
        <translation>Das Laufwerk mit den Videos antwortet nicht. Es wurden keine Videos kopiert.</translation>
    </message>
    <message>
        <source>The drive with these videos is not answering. They were not opened.</source>
        <translation>Das Laufwerk mit diesen Videos antwortet nicht. Sie wurden nicht geöffnet.</translation>
    </message>
    <message>
        <source>The drive with this file is not answering.</source>
        <translation>Das Laufwerk mit dieser Datei antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with this picture is not answering.</source>
        <translation>Das Laufwerk mit diesem Bild antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with this video is not answering.</source>
        <translation>Das Laufwerk mit diesem Video antwortet nicht.</translation>
    </message>
    <message>
        <source>The drive with this video is not answering. The video was not opened.</source>
        <translation>Das Laufwerk mit diesem Video antwortet nicht. Das Video wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>The file "{}" cannot be read: {}.</source>
        <translation>Die Datei "{}" ist nicht zu lesen: {}.</translation>
    </message>
    <message>
        <source>The file "{}" changed or went while it was being sent, so nothing was sent.</source>
        <translation>Die Datei "{}" änderte sich oder verschwand, während sie gesendet wurde; es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>Die Datei wurde kürzer, während sie gesendet wurde.</translation>
    </message>
    <message>
        <source>The file cannot be read, or it is too large for notes.</source>
        <translation>Die Datei ist nicht zu lesen oder zu groß für Notizen.</translation>
    </message>
    <message>
        <source>The file is no video that can be read.</source>
        <translation>Die Datei ist kein Video, das gelesen werden kann.</translation>
    </message>
    <message>
        <source>The file of the macros would need {} bytes. Beyond {} it could not be read whole. Remove a macro first.</source>
        <translation>Die Makrodatei würde {} Bytes brauchen. Über {} wäre sie nicht mehr ganz zu lesen. Entfernen Sie zuerst ein Makro.</translation>
    </message>
    <message>
        <source>The file {} cannot be deleted.</source>
        <translation>Die Datei {} kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The file {} cannot be written.</source>
        <translation>Die Datei {} kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file {} cannot be written: {}</source>
        <translation>Die Datei {} kann nicht geschrieben werden: {}</translation>
    </message>
    <message>
        <source>The files are converted and uploaded to your web space; what the page shows already stays. Its link goes to these addresses:</source>
        <translation>Die Dateien werden umgewandelt und auf Ihren Webspace geladen; was die Seite schon zeigt, bleibt. Ihr Link geht an diese Adressen:</translation>
    </message>
    <message>
        <source>The files are converted, and each goes in a mail of its own to these addresses:</source>
        <translation>Die Dateien werden umgewandelt, und jede geht in einer eigenen Mail an diese Adressen:</translation>
    </message>
    <message>
        <source>The first %1 of %2 pages</source>
        <translation>Die ersten %1 von %2 Seiten</translation>
    </message>
    <message>
        <source>The first lines of each video's notes, at its foot</source>
        <translation>Die ersten Zeilen der Notizen unter jedem Video</translation>
    </message>
    <message>
        <source>The folder "School Pics" cannot be made.</source>
        <translation>Der Ordner "School Pics" kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Der Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder cannot be made: {}.</source>
        <translation>Der Ordner kann nicht angelegt werden: {}.</translation>
    </message>
    <message>
        <source>The folder for the converted videos could not be made: {}</source>
        <translation>Der Ordner für die umgewandelten Videos konnte nicht angelegt werden: {}</translation>
    </message>
    <message>
        <source>The folder for the video is not there any more.</source>
        <translation>Der Ordner für das Video ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The folder for what is made on the way could not be made.</source>
        <translation>Der Ordner für Zwischendateien konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder is %1</source>
        <translation>Der Ordner ist %1</translation>
    </message>
    <message>
        <source>The folder is not there any more.</source>
        <translation>Der Ordner ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The folder of the image file cannot be written to.</source>
        <translation>In den Ordner der Abbilddatei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder of the image file is not there.</source>
        <translation>Den Ordner der Abbilddatei gibt es nicht.</translation>
    </message>
    <message>
        <source>The folder of {} is not there any more. Choose whose lesson it is.</source>
        <translation>Den Ordner von {} gibt es nicht mehr. Wählen Sie, wessen Lektion es ist.</translation>
    </message>
    <message>
        <source>The folder {} belongs to the program. You cannot {} it.</source>
        <translation>Der Ordner {} gehört dem Programm. Sie können ihn nicht {}.</translation>
    </message>
    <message>
        <source>The folder {} belongs to this library. Choose a drive or folder outside of it.</source>
        <translation>Der Ordner {} gehört zu dieser Bibliothek. Wählen Sie ein Laufwerk oder einen Ordner außerhalb.</translation>
    </message>
    <message>
        <source>The folder {} cannot be found. The video was not moved.</source>
        <translation>Der Ordner {} ist nicht zu finden. Das Video wurde nicht verschoben.</translation>
    </message>
    <message>
        <source>The folder {} cannot be found. The {} was not moved.</source>
        <translation>Der Ordner {} ist nicht zu finden. {}: nicht verschoben.</translation>
    </message>
    <message>
        <source>The folder {} cannot be made.</source>
        <translation>Der Ordner {} kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder {} cannot be made: {}.</source>
        <translation>Der Ordner {} kann nicht angelegt werden: {}.</translation>
    </message>
    <message>
        <source>The folder {} cannot be reached.</source>
        <translation>Der Ordner {} ist nicht zu erreichen.</translation>
    </message>
    <message>
        <source>The folder {} cannot be reached. Nothing was changed.</source>
        <translation>Der Ordner {} ist nicht zu erreichen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The folder {} cannot be used for videos.</source>
        <translation>Der Ordner {} ist für Videos nicht zu verwenden.</translation>
    </message>
    <message>
        <source>The graph connects a filter {} that it does not have.</source>
        <translation>Der Graph verbindet einen Filter {}, den er nicht hat.</translation>
    </message>
    <message>
        <source>The graph has no {} "{}".</source>
        <translation>Der Graph hat kein {} "{}".</translation>
    </message>
    <message>
        <source>The graph has two filters "{}".</source>
        <translation>Der Graph hat zwei Filter "{}".</translation>
    </message>
    <message>
        <source>The graph has two filters {}.</source>
        <translation>Der Graph hat zwei Filter {}.</translation>
    </message>
    <message>
        <source>The graph's filter "{}" is of an unknown class, {}.</source>
        <translation>Der Filter "{}" des Graphen ist von unbekannter Klasse, {}.</translation>
    </message>
    <message>
        <source>The graph's filter {} has no label.</source>
        <translation>Der Filter {} des Graphen hat keinen Namen.</translation>
    </message>
    <message>
        <source>The help pages are missing. They should lie in %1.</source>
        <translation>Die Hilfeseiten fehlen. Sie sollten in %1 liegen.</translation>
    </message>
    <message>
        <source>The image could not be begun.</source>
        <translation>Das Abbild konnte nicht begonnen werden.</translation>
    </message>
    <message>
        <source>The image could not be given its name.</source>
        <translation>Das Abbild konnte seinen Namen nicht bekommen.</translation>
    </message>
    <message>
        <source>The last recording cannot be moved away from {}.</source>
        <translation>Die letzte Aufnahme in {} kann nicht beiseite geräumt werden.</translation>
    </message>
    <message>
        <source>The last seconds again and again, slowly (L)</source>
        <translation>Die letzten Sekunden immer wieder, langsam (L)</translation>
    </message>
    <message>
        <source>The last video is still being saved.</source>
        <translation>Das letzte Video wird noch gespeichert.</translation>
    </message>
    <message>
        <source>The last video is still being saved. Do you want to go on all the same?</source>
        <translation>Das letzte Video wird noch gespeichert. Möchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>The lesson WAS NOT SAVED. {}</source>
        <translation>Die Lektion wurde NICHT GESPEICHERT. {}</translation>
    </message>
    <message>
        <source>The lesson cannot be written: {}</source>
        <translation>Die Lektion kann nicht geschrieben werden: {}</translation>
    </message>
    <message>
        <source>The lesson has been saved or thrown away in another window.</source>
        <translation>Die Lektion wurde in einem anderen Fenster gespeichert oder weggeworfen.</translation>
    </message>
    <message>
        <source>The lesson has not been saved. Do you want to leave it? It is offered again at the next start.</source>
        <translation>Die Lektion ist nicht gespeichert. Möchten Sie sie verlassen? Beim nächsten Start wird sie wieder angeboten.</translation>
    </message>
    <message>
        <source>The lesson is still being saved.</source>
        <translation>Die Lektion wird noch gespeichert.</translation>
    </message>
    <message>
        <source>The lesson waits in the recorder</source>
        <translation>Die Lektion wartet im Rekorder</translation>
    </message>
    <message>
        <source>The library folder {} cannot be reached; choose another in Program Setup, under General.</source>
        <translation>Der Bibliotheksordner {} ist nicht zu erreichen; wählen Sie in der Einrichtung unter Allgemein einen anderen.</translation>
    </message>
    <message>
        <source>The library for cameras cannot be used on this machine.</source>
        <translation>Die Kamerabibliothek ist auf diesem Rechner nicht zu benutzen.</translation>
    </message>
    <message>
        <source>The list of videos to open loads the files of a shot together, in place of undoing the last open</source>
        <translation>Die Liste der Videos lädt die Dateien eines Schlags gemeinsam, statt das letzte Öffnen zurückzunehmen</translation>
    </message>
    <message>
        <source>The macro could not be removed. {}</source>
        <translation>Das Makro konnte nicht entfernt werden. {}</translation>
    </message>
    <message>
        <source>The macro could not be saved. {}</source>
        <translation>Das Makro konnte nicht gespeichert werden. {}</translation>
    </message>
    <message>
        <source>The macro needs a name.</source>
        <translation>Das Makro braucht einen Namen.</translation>
    </message>
    <message>
        <source>The macros in "{}" cannot be read.</source>
        <translation>Die Makros in "{}" sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The macros in "{}" could not all be read: the file is damaged, too long, or of another program. It will be kept under another name before anything is changed in it.</source>
        <translation>Die Makros in "{}" waren nicht alle zu lesen: Die Datei ist beschädigt, zu lang oder von einem anderen Programm. Sie wird unter anderem Namen aufbewahrt, ehe etwas in ihr geändert wird.</translation>
    </message>
    <message>
        <source>The mail server did not take the message.{}</source>
        <translation>Der Mailserver hat die Nachricht nicht angenommen.{}</translation>
    </message>
    <message>
        <source>The mail server does not let this sender send.{}</source>
        <translation>Der Mailserver lässt diesen Absender nicht senden.{}</translation>
    </message>
    <message>
        <source>The mail server refuses the address {}, so nothing was sent to anybody.{}</source>
        <translation>Der Mailserver weist die Adresse {} zurück; an niemanden wurde etwas gesendet.{}</translation>
    </message>
    <message>
        <source>The mail server takes a login only with encryption. Choose TLS or SSL.</source>
        <translation>Der Mailserver nimmt ein Login nur verschlüsselt an. Wählen Sie TLS oder SSL.</translation>
    </message>
    <message>
        <source>The mail server wants a login.</source>
        <translation>Der Mailserver will ein Login.</translation>
    </message>
    <message>
        <source>The message has no reader.</source>
        <translation>Die Nachricht hat keinen Empfänger.</translation>
    </message>
    <message>
        <source>The message is larger than the mail server takes.{}</source>
        <translation>Die Nachricht ist größer, als der Mailserver annimmt.{}</translation>
    </message>
    <message>
        <source>The microphone cannot be found.</source>
        <translation>Das Mikrofon ist nicht zu finden.</translation>
    </message>
    <message>
        <source>The microphone cannot be opened.</source>
        <translation>Das Mikrofon lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The microphone does not answer.</source>
        <translation>Das Mikrofon antwortet nicht.</translation>
    </message>
    <message>
        <source>The microphone gives no sound any more.</source>
        <translation>Das Mikrofon gibt keinen Ton mehr.</translation>
    </message>
    <message>
        <source>The microphone gives no sound.</source>
        <translation>Das Mikrofon gibt keinen Ton.</translation>
    </message>
    <message>
        <source>The microphone gives nothing any more.</source>
        <translation>Das Mikrofon gibt nichts mehr.</translation>
    </message>
    <message>
        <source>The microphone gives nothing any more. Is it still plugged in?</source>
        <translation>Das Mikrofon gibt nichts mehr. Ist es noch angeschlossen?</translation>
    </message>
    <message>
        <source>The microphone has ended.</source>
        <translation>Das Mikrofon ist zu Ende.</translation>
    </message>
    <message>
        <source>The microphone has no such line.</source>
        <translation>Das Mikrofon hat keinen solchen Eingang.</translation>
    </message>
    <message>
        <source>The microphone has stopped: {}</source>
        <translation>Das Mikrofon hat angehalten: {}</translation>
    </message>
    <message>
        <source>The microphone is not there any more.</source>
        <translation>Das Mikrofon ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The microphone may not be used: it wants a password.</source>
        <translation>Das Mikrofon ist nicht frei: Es will ein Passwort.</translation>
    </message>
    <message>
        <source>The middle of each video, side by side</source>
        <translation>Die Mitte jedes Videos, nebeneinander</translation>
    </message>
    <message>
        <source>The model picture {} cannot be loaded: {}</source>
        <translation>Das Modellbild {} lässt sich nicht laden: {}</translation>
    </message>
    <message>
        <source>The name is always the first field.</source>
        <translation>Der Name ist immer das erste Feld.</translation>
    </message>
    <message>
        <source>The name of the file is empty.</source>
        <translation>Der Name der Datei ist leer.</translation>
    </message>
    <message>
        <source>The name of the mail server holds a letter that is in no name.</source>
        <translation>Der Name des Mailservers enthält ein Zeichen, das in keinem Namen vorkommt.</translation>
    </message>
    <message>
        <source>The name of the server holds a letter that is in no name.</source>
        <translation>Der Servername enthält ein Zeichen, das in keinem Namen vorkommt.</translation>
    </message>
    <message>
        <source>The name you have chosen already exists in the database.</source>
        <translation>Den gewählten Namen gibt es in der Datenbank schon.</translation>
    </message>
    <message>
        <source>The new video begins with the picture that is shown (S)</source>
        <translation>Das neue Video beginnt mit dem gezeigten Bild (S)</translation>
    </message>
    <message>
        <source>The new video ends with the picture that is shown (E)</source>
        <translation>Das neue Video endet mit dem gezeigten Bild (E)</translation>
    </message>
    <message>
        <source>The new video has gone.</source>
        <translation>Das neue Video ist weg.</translation>
    </message>
    <message>
        <source>The notes are full: they hold %1 characters. The last %2 that were typed or pasted were left out.</source>
        <translation>Die Notizen sind voll: Sie fassen %1 Zeichen. Die letzten %2 eingegebenen oder eingefügten blieben weg.</translation>
    </message>
    <message>
        <source>The notes are longer than {} characters. What follows was not saved.</source>
        <translation>Die Notizen sind länger als {} Zeichen. Was folgt, wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>The notes cannot be read.</source>
        <translation>Die Notizen sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The notes could not be saved. Do you want to close Kinalyx all the same?</source>
        <translation>Die Notizen konnten nicht gespeichert werden. Möchten Sie Kinalyx trotzdem schließen?</translation>
    </message>
    <message>
        <source>The notes could not be saved: %1.</source>
        <translation>Die Notizen konnten nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>The notes could not be saved: {}. They are kept and will be tried again.</source>
        <translation>Die Notizen konnten nicht gespeichert werden: {}. Sie bleiben hier, und es wird wieder versucht.</translation>
    </message>
    <message>
        <source>The notes have not been saved. Do you want to lose them?</source>
        <translation>Die Notizen sind nicht gespeichert. Möchten Sie sie verlieren?</translation>
    </message>
    <message>
        <source>The notes of {} could not be saved: somebody else has renamed, moved or deleted the folder. These were the notes:</source>
        <translation>Die Notizen von {} konnten nicht gespeichert werden: Jemand hat den Ordner umbenannt, verschoben oder gelöscht. Dies waren die Notizen:</translation>
    </message>
    <message>
        <source>The notes were not printed.</source>
        <translation>Die Notizen wurden nicht gedruckt.</translation>
    </message>
    <message>
        <source>The notes were not printed. {}</source>
        <translation>Die Notizen wurden nicht gedruckt. {}</translation>
    </message>
    <message>
        <source>The notes were printed.</source>
        <translation>Die Notizen wurden gedruckt.</translation>
    </message>
    <message>
        <source>The page cannot be opened on this computer: {}</source>
        <translation>Die Seite lässt sich auf diesem Rechner nicht öffnen: {}</translation>
    </message>
    <message>
        <source>The passwords lie in the file mail.ini of your data folder. They are scrambled there, which hides them from a glance and no more; %1. Do not give it away.</source>
        <translation>Die Passwörter liegen in der Datei mail.ini Ihres Datenordners. Sie sind dort verwürfelt, was sie vor einem Blick verbirgt und nicht mehr; %1. Geben Sie sie nicht weiter.</translation>
    </message>
    <message>
        <source>The path {} is longer than the 149 characters that the settings can hold. Choose a place with a shorter path.</source>
        <translation>Der Pfad {} ist länger als die 149 Zeichen, die die Einstellungen fassen. Wählen Sie einen Ort mit kürzerem Pfad.</translation>
    </message>
    <message>
        <source>The picture cannot be shown; the recording goes on.</source>
        <translation>Das Bild kann nicht gezeigt werden; die Aufnahme läuft weiter.</translation>
    </message>
    <message>
        <source>The picture could not be deleted.</source>
        <translation>Das Bild konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The picture could not be read from its file.</source>
        <translation>Das Bild war nicht aus seiner Datei zu lesen.</translation>
    </message>
    <message>
        <source>The picture could not be saved. {}</source>
        <translation>Das Bild konnte nicht gespeichert werden. {}</translation>
    </message>
    <message>
        <source>The picture could not be saved: {}</source>
        <translation>Das Bild konnte nicht gespeichert werden: {}</translation>
    </message>
    <message>
        <source>The picture is frozen</source>
        <translation>Das Bild ist angehalten</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>Das Bild ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>The picture of this camera cannot be shown.</source>
        <translation>Das Bild dieser Kamera kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>The picture of this camera cannot be shown. It can be recorded all the same.</source>
        <translation>Das Bild dieser Kamera kann nicht gezeigt werden. Aufnehmen lässt es sich trotzdem.</translation>
    </message>
    <message>
        <source>The picture that is shown is the first pose</source>
        <translation>Das gezeigte Bild ist die erste Haltung</translation>
    </message>
    <message>
        <source>The picture that is shown is the last pose</source>
        <translation>Das gezeigte Bild ist die letzte Haltung</translation>
    </message>
    <message>
        <source>The picture was not saved. {}</source>
        <translation>Das Bild wurde nicht gespeichert. {}</translation>
    </message>
    <message>
        <source>The picture was saved.</source>
        <translation>Das Bild wurde gespeichert.</translation>
    </message>
    <message>
        <source>The pictures cannot be read: the video has gone, or it is damaged.</source>
        <translation>Die Bilder sind nicht zu lesen: Das Video ist weg oder beschädigt.</translation>
    </message>
    <message>
        <source>The pictures cannot be taken as they come.</source>
        <translation>Die Bilder lassen sich so nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The pictures could not be saved. {}</source>
        <translation>Die Bilder konnten nicht gespeichert werden. {}</translation>
    </message>
    <message>
        <source>The pictures of the camera cannot be written.</source>
        <translation>Die Bilder der Kamera können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The pictures would be too large.</source>
        <translation>Die Bilder würden zu groß.</translation>
    </message>
    <message>
        <source>The port of the mail server is no port.</source>
        <translation>Der Port des Mailservers ist kein Port.</translation>
    </message>
    <message>
        <source>The printer has not answered yet; the pages may still come out.</source>
        <translation>Der Drucker hat noch nicht geantwortet; die Seiten kommen vielleicht noch heraus.</translation>
    </message>
    <message>
        <source>The printer {} does not take the pages.</source>
        <translation>Der Drucker {} nimmt die Seiten nicht an.</translation>
    </message>
    <message>
        <source>The profile of this %1 has no address</source>
        <translation>Das Profil (%1) hat keine Adresse</translation>
    </message>
    <message>
        <source>The profiles have no field "E-Mail Address". Program Setup has them.</source>
        <translation>Die Profile haben kein Feld "E-Mail Address". Die Einrichtung hat sie.</translation>
    </message>
    <message>
        <source>The program avitrim has failed.</source>
        <translation>Das Programm avitrim ist gescheitert.</translation>
    </message>
    <message>
        <source>The program starts with this camera, its size and its format from now on</source>
        <translation>Das Programm beginnt von nun an mit dieser Kamera, ihrer Größe und ihrem Format</translation>
    </message>
    <message>
        <source>The quality must be 0 to 100.</source>
        <translation>Die Qualität muss 0 bis 100 sein.</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Die Aufnahme ist nicht zu lesen.</translation>
    </message>
    <message>
        <source>The recording has not been saved. Do you want to throw it away?</source>
        <translation>Die Aufnahme ist nicht gespeichert. Möchten Sie sie wegwerfen?</translation>
    </message>
    <message>
        <source>The recording holds no picture.</source>
        <translation>Die Aufnahme enthält kein Bild.</translation>
    </message>
    <message>
        <source>The recording was put away.</source>
        <translation>Die Aufnahme wurde weggelegt.</translation>
    </message>
    <message>
        <source>The screen cannot be opened.</source>
        <translation>Der Bildschirm lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The screen cannot be recorded here: Kinalyx runs on no desktop that could show it.</source>
        <translation>Der Bildschirm kann hier nicht aufgenommen werden: Kinalyx läuft auf keinem Desktop, der ihn zeigen könnte.</translation>
    </message>
    <message>
        <source>The screen does not answer.</source>
        <translation>Der Bildschirm antwortet nicht.</translation>
    </message>
    <message>
        <source>The screen gives no picture.</source>
        <translation>Der Bildschirm gibt kein Bild.</translation>
    </message>
    <message>
        <source>The screen gives nothing any more.</source>
        <translation>Der Bildschirm gibt nichts mehr.</translation>
    </message>
    <message>
        <source>The screen gives nothing any more. Is it still plugged in?</source>
        <translation>Der Bildschirm gibt nichts mehr. Ist er noch angeschlossen?</translation>
    </message>
    <message>
        <source>The screen has ended.</source>
        <translation>Der Bildschirm ist zu Ende.</translation>
    </message>
    <message>
        <source>The screen has stopped: {}</source>
        <translation>Der Bildschirm hat angehalten: {}</translation>
    </message>
    <message>
        <source>The screen is not there any more.</source>
        <translation>Der Bildschirm ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The screen may not be used: it wants a password.</source>
        <translation>Der Bildschirm ist nicht frei: Er will ein Passwort.</translation>
    </message>
    <message>
        <source>The screen was not given.</source>
        <translation>Der Bildschirm wurde nicht freigegeben.</translation>
    </message>
    <message>
        <source>The seconds of each video, from the zero point of its timer</source>
        <translation>Die Sekunden jedes Videos ab dem Nullpunkt seines Zeitmessers</translation>
    </message>
    <message>
        <source>The selected video appears to be corrupt. Would you like to delete it?</source>
        <translation>Das gewählte Video scheint beschädigt zu sein. Möchten Sie es löschen?</translation>
    </message>
    <message>
        <source>The server "{}" shows another key than the one that this computer remembers. Either it was set up anew, or somebody else is in between: nothing was sent, and no password. If your provider confirms the new key, remove the old one's line from the file "{}".</source>
        <translation>Der Server "{}" zeigt einen anderen Schlüssel als den, den sich dieser Rechner gemerkt hat. Entweder wurde er neu eingerichtet, oder jemand steht dazwischen: Es wurde nichts gesendet, auch kein Passwort. Bestätigt Ihr Anbieter den neuen Schlüssel, so entfernen Sie die Zeile des alten aus der Datei "{}".</translation>
    </message>
    <message>
        <source>The server asks for a login</source>
        <translation>Der Server verlangt ein Login</translation>
    </message>
    <message>
        <source>The server cannot call this computer back, as it must in the active mode. Choose the passive mode.{}</source>
        <translation>Der Server kann diesen Rechner nicht zurückrufen, wie er es im aktiven Modus muss. Wählen Sie den passiven Modus.{}</translation>
    </message>
    <message>
        <source>The server does not allow it.{}</source>
        <translation>Der Server erlaubt es nicht.{}</translation>
    </message>
    <message>
        <source>The server does not know the passive mode. Choose the active mode.{}</source>
        <translation>Der Server kennt den passiven Modus nicht. Wählen Sie den aktiven Modus.{}</translation>
    </message>
    <message>
        <source>The server does not let the folder "{}" be made.</source>
        <translation>Der Server lässt den Ordner "{}" nicht anlegen.</translation>
    </message>
    <message>
        <source>The server has no such file or folder.{}</source>
        <translation>Der Server hat keine solche Datei und keinen solchen Ordner.{}</translation>
    </message>
    <message>
        <source>The server has no such folder.{}</source>
        <translation>Der Server hat keinen solchen Ordner.{}</translation>
    </message>
    <message>
        <source>The server is full.{}</source>
        <translation>Der Server ist voll.{}</translation>
    </message>
    <message>
        <source>The server, the port and the way of encryption are told by who keeps your mailbox.</source>
        <translation>Server, Port und Verschlüsselung erfahren Sie, wo Ihr Postfach ist.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in {}, so changes last until the program closes.</source>
        <translation>Die Einstellungen können in {} nicht gespeichert werden; Änderungen gelten bis zum Schließen des Programms.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in {}. The program works with its first settings, and changes last until it closes.</source>
        <translation>Die Einstellungen können in {} nicht gespeichert werden. Das Programm arbeitet mit seinen ersten Einstellungen, und Änderungen gelten, bis es geschlossen wird.</translation>
    </message>
    <message>
        <source>The sound server does not answer.</source>
        <translation>Der Tonserver antwortet nicht.</translation>
    </message>
    <message>
        <source>The source and destination folders are the same. No videos were copied.</source>
        <translation>Quelle und Ziel sind derselbe Ordner. Es wurden keine Videos kopiert.</translation>
    </message>
    <message>
        <source>The source and destination folders are the same. The video was not moved.</source>
        <translation>Quelle und Ziel sind derselbe Ordner. Das Video wurde nicht verschoben.</translation>
    </message>
    <message>
        <source>The specified file does not contain media streams, make sure you choose a valid media file</source>
        <translation>Diese Datei enthält kein Bild und keinen Ton; bitte wählen Sie eine gültige Mediendatei</translation>
    </message>
    <message>
        <source>The student has no videos.</source>
        <translation>Es gibt hier keine Videos.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Der Test wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The text is not that of a graph.</source>
        <translation>Der Text beschreibt keinen Graphen.</translation>
    </message>
    <message>
        <source>The text of the graph breaks off or is damaged at character {}: {}</source>
        <translation>Der Text des Graphen bricht ab oder ist beschädigt, bei Zeichen {}: {}</translation>
    </message>
    <message>
        <source>The values of the field "{}" are stored under "{}", its name of before. Please choose another name.</source>
        <translation>Die Werte des Feldes "{}" sind noch unter seinem alten Namen "{}" gespeichert. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The video "{}" is damaged: it holds no picture that can be shown.</source>
        <translation>Das Video "{}" ist beschädigt: Es enthält kein Bild, das gezeigt werden kann.</translation>
    </message>
    <message>
        <source>The video "{}" is no longer there.</source>
        <translation>Das Video "{}" ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The video begins at the picture that is shown (I)</source>
        <translation>Das Video beginnt mit dem gezeigten Bild (I)</translation>
    </message>
    <message>
        <source>The video begins with the frame that is shown (S)</source>
        <translation>Das Video beginnt mit dem gezeigten Bild (S)</translation>
    </message>
    <message>
        <source>The video could not be renamed</source>
        <translation>Das Video konnte nicht umbenannt werden</translation>
    </message>
    <message>
        <source>The video could not be saved: </source>
        <translation>Das Video konnte nicht gespeichert werden: </translation>
    </message>
    <message>
        <source>The video ends at the picture that is shown (O)</source>
        <translation>Das Video endet mit dem gezeigten Bild (O)</translation>
    </message>
    <message>
        <source>The video ends with the frame that is shown (E)</source>
        <translation>Das Video endet mit dem gezeigten Bild (E)</translation>
    </message>
    <message>
        <source>The video in window {} has no mark: M makes one</source>
        <translation>Das Video in Fenster {} hat keine Marke: M setzt eine</translation>
    </message>
    <message>
        <source>The video is attached twice: the file that ends in .mp4 plays on telephones and computers, the one that ends in .wmv in Windows Media Player.</source>
        <translation>Das Video hängt zweimal an: Die Datei, die auf .mp4 endet, spielt auf Telefonen und Rechnern, die auf .wmv in Windows Media Player.</translation>
    </message>
    <message>
        <source>The video is attached. Windows Media Player plays it.</source>
        <translation>Das Video hängt an. Windows Media Player spielt es.</translation>
    </message>
    <message>
        <source>The video is saved. The analysis section did not open it.</source>
        <translation>Das Video ist gespeichert. Die Analyse hat es nicht geöffnet.</translation>
    </message>
    <message>
        <source>The video library at {} cannot be reached. Nothing was changed.</source>
        <translation>Die Videobibliothek in {} ist nicht zu erreichen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The video library at {} is not there any more. Do you want to begin a new one in its place?</source>
        <translation>Die Videobibliothek in {} ist nicht mehr da. Möchten Sie an ihrer Stelle eine neue beginnen?</translation>
    </message>
    <message>
        <source>The video name you have chosen already exists, please try again.</source>
        <translation>Den gewählten Videonamen gibt es schon, bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The video of the earlier day</source>
        <translation>Das Video des früheren Tages</translation>
    </message>
    <message>
        <source>The video was not moved</source>
        <translation>Das Video wurde nicht verschoben</translation>
    </message>
    <message>
        <source>The video {}</source>
        <translation>Das Video {}</translation>
    </message>
    <message>
        <source>The videos are locked: use the bar below</source>
        <translation>Die Videos sind gekoppelt: Nehmen Sie die Leiste darunter</translation>
    </message>
    <message>
        <source>The videos are still being sent. Do you want to cancel that?</source>
        <translation>Die Videos werden noch gesendet. Möchten Sie das abbrechen?</translation>
    </message>
    <message>
        <source>The videos have no marks yet: M makes one where each of them stands</source>
        <translation>Die Videos haben noch keine Marken: M setzt eine, wo jedes gerade steht</translation>
    </message>
    <message>
        <source>The whole of the current video is played</source>
        <translation>Das ganze Video wird gespielt</translation>
    </message>
    <message>
        <source>The {} "{}" did not do it: {}.{}</source>
        <translation>{} "{}" hat es nicht getan: {}.{}</translation>
    </message>
    <message>
        <source>The {} "{}" does not accept the login or the password.{}</source>
        <translation>{} "{}" nimmt Login oder Passwort nicht an.{}</translation>
    </message>
    <message>
        <source>The {} "{}" does not answer. Is this computer connected to the Internet?</source>
        <translation>{} "{}" antwortet nicht. Ist dieser Rechner mit dem Internet verbunden?</translation>
    </message>
    <message>
        <source>The {} "{}" does not speak the encryption that the settings want at this port. See whether port and encryption are as your provider says.</source>
        <translation>{} "{}" spricht an diesem Port nicht die Verschlüsselung, die eingestellt ist. Sehen Sie nach, ob Port und Verschlüsselung so sind, wie Ihr Anbieter sagt.</translation>
    </message>
    <message>
        <source>The {} "{}" has refused it.{}</source>
        <translation>{} "{}" hat es zurückgewiesen.{}</translation>
    </message>
    <message>
        <source>The {} "{}" has stopped answering.{}</source>
        <translation>{} "{}" antwortet nicht mehr.{}</translation>
    </message>
    <message>
        <source>The {} "{}" is busy and has hung up.{}</source>
        <translation>{} "{}" ist beschäftigt und hat aufgelegt.{}</translation>
    </message>
    <message>
        <source>The {} "{}" offers no encryption, so nothing was sent, and no password.</source>
        <translation>{} "{}" bietet keine Verschlüsselung; es wurde nichts gesendet, auch kein Passwort.</translation>
    </message>
    <message>
        <source>The {} "{}" takes no calls at this port.</source>
        <translation>{} "{}" nimmt an diesem Port keine Anrufe an.</translation>
    </message>
    <message>
        <source>The {} could not be removed: {}</source>
        <translation>{} konnte nicht entfernt werden: {}</translation>
    </message>
    <message>
        <source>The {} could not be renamed</source>
        <translation>{} konnte nicht umbenannt werden</translation>
    </message>
    <message>
        <source>The {} name that you have chosen already exists on the system.</source>
        <translation>Diesen Namen gibt es schon im System ({}).</translation>
    </message>
    <message>
        <source>The {} was not moved</source>
        <translation>{}: nicht verschoben</translation>
    </message>
    <message>
        <source>The {} was not removed</source>
        <translation>{}: nicht entfernt</translation>
    </message>
    <message>
        <source>The {} {}</source>
        <translation>{} {}</translation>
    </message>
    <message>
        <source>Then and Now</source>
        <translation>Damals und heute</translation>
    </message>
    <message>
        <source>Then and now</source>
        <translation>Damals und heute</translation>
    </message>
    <message>
        <source>There are files of these names already.</source>
        <translation>Es gibt schon Dateien dieser Namen.</translation>
    </message>
    <message>
        <source>There are no files in the folder.</source>
        <translation>Im Ordner sind keine Dateien.</translation>
    </message>
    <message>
        <source>There are no macros yet; save a drawing as one first</source>
        <translation>Es gibt noch keine Makros; speichern Sie zuerst eine Zeichnung als Makro</translation>
    </message>
    <message>
        <source>There are no notes to print.</source>
        <translation>Es gibt keine Notizen zu drucken.</translation>
    </message>
    <message>
        <source>There are no videos here with the names that belong together with "{}".</source>
        <translation>Hier gibt es keine Videos mit Namen, die zu "{}" gehören.</translation>
    </message>
    <message>
        <source>There are no videos here yet.</source>
        <translation>Hier sind noch keine Videos.</translation>
    </message>
    <message>
        <source>There are no videos on this disc.</source>
        <translation>Auf dieser Disc sind keine Videos.</translation>
    </message>
    <message>
        <source>There are only {} pages.</source>
        <translation>Es gibt nur {} Seiten.</translation>
    </message>
    <message>
        <source>There are other files in the folder {}. Move or delete them first.</source>
        <translation>Im Ordner {} sind noch andere Dateien. Verschieben oder löschen Sie diese zuerst.</translation>
    </message>
    <message>
        <source>There are too many pages with this name on the server.</source>
        <translation>Auf dem Server gibt es zu viele Seiten dieses Namens.</translation>
    </message>
    <message>
        <source>There are too many unfinished lessons in {}.</source>
        <translation>Es sind zu viele unfertige Lektionen in {}.</translation>
    </message>
    <message>
        <source>There are {} files in the folder</source>
        <translation>Im Ordner sind {} Dateien</translation>
    </message>
    <message>
        <source>There can be no more than {} macros.</source>
        <translation>Es kann nicht mehr als {} Makros geben.</translation>
    </message>
    <message>
        <source>There is 1 file in the folder</source>
        <translation>Im Ordner ist 1 Datei</translation>
    </message>
    <message>
        <source>There is a file named "{}" where a folder is needed.</source>
        <translation>Es gibt eine Datei "{}", wo ein Ordner sein muss.</translation>
    </message>
    <message>
        <source>There is a file named "{}" where a folder must be.</source>
        <translation>Es gibt eine Datei "{}", wo ein Ordner sein muss.</translation>
    </message>
    <message>
        <source>There is a folder named "{}" where a file must be.</source>
        <translation>Es gibt einen Ordner "{}", wo eine Datei sein muss.</translation>
    </message>
    <message>
        <source>There is a problem finding data on this original video. If this is a Windows 10 pc, try running the 'tweaker' software in Program Setup\Capture. Err 2238</source>
        <translation>Zu diesem Originalvideo sind keine Daten zu finden. Auf einem PC mit Windows 10 versuchen Sie den 'tweaker' unter Einrichtung\Aufnahme. Err 2238</translation>
    </message>
    <message>
        <source>There is already a video with the name "{}".</source>
        <translation>Es gibt schon ein Video mit dem Namen "{}".</translation>
    </message>
    <message>
        <source>There is already a video with the same name in the Quick Launch folder. The copy process will be cancelled.</source>
        <translation>Im Schnellstart-Ordner gibt es schon ein Video dieses Namens. Es wird nicht kopiert.</translation>
    </message>
    <message>
        <source>There is already an Instructor or Database with this name.</source>
        <translation>Es gibt schon einen Trainer oder eine Datenbank dieses Namens.</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>Im Laufwerk ist keine Disc.</translation>
    </message>
    <message>
        <source>There is no drive for discs in this computer.</source>
        <translation>In diesem Rechner ist kein Laufwerk für Discs.</translation>
    </message>
    <message>
        <source>There is no drive for discs in this computer. An image file or a stick serve as well.</source>
        <translation>In diesem Rechner ist kein Laufwerk für Discs. Eine Abbilddatei oder ein Stick tun es auch.</translation>
    </message>
    <message>
        <source>There is no graph that could run.</source>
        <translation>Es gibt keinen Graphen, der laufen könnte.</translation>
    </message>
    <message>
        <source>There is no lesson to be saved.</source>
        <translation>Es gibt keine Lektion zu speichern.</translation>
    </message>
    <message>
        <source>There is no other database. Add one first.</source>
        <translation>Es gibt keine andere Datenbank. Legen Sie zuerst eine an.</translation>
    </message>
    <message>
        <source>There is no picture in the file {} that can be shown. The old picture stays.</source>
        <translation>In der Datei {} ist kein Bild, das gezeigt werden kann. Das alte Bild bleibt.</translation>
    </message>
    <message>
        <source>There is no picture in this file.</source>
        <translation>In dieser Datei ist kein Bild.</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>Es gibt kein Bild zu speichern.</translation>
    </message>
    <message>
        <source>There is no picture to show.</source>
        <translation>Es gibt kein Bild zu zeigen.</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>There is no strobe picture to save.</source>
        <translation>Es gibt kein Strobe-Bild zu speichern.</translation>
    </message>
    <message>
        <source>There is no such input of the microphone.</source>
        <translation>Das Mikrofon hat keinen solchen Eingang.</translation>
    </message>
    <message>
        <source>There is no video among these files that is not here already.</source>
        <translation>Unter diesen Dateien ist kein Video, das nicht schon hier ist.</translation>
    </message>
    <message>
        <source>There is no video among these files.</source>
        <translation>Unter diesen Dateien ist kein Video.</translation>
    </message>
    <message>
        <source>There is no video among what was dropped.</source>
        <translation>Unter dem Losgelassenen ist kein Video.</translation>
    </message>
    <message>
        <source>There is no video in the camera's folder.

%1</source>
        <translation>Im Ordner der Kamera ist kein Video.

%1</translation>
    </message>
    <message>
        <source>There is no video in the highlighted window</source>
        <translation>Im markierten Fenster ist kein Video</translation>
    </message>
    <message>
        <source>There is no video to show.</source>
        <translation>Es gibt kein Video zu zeigen.</translation>
    </message>
    <message>
        <source>There is no {} of the name "{}", or this computer is not connected to the Internet.</source>
        <translation>Es gibt keinen {} mit dem Namen "{}", oder dieser Rechner ist nicht mit dem Internet verbunden.</translation>
    </message>
    <message>
        <source>There is not enough room: {} MB are needed, and {} MB are free.</source>
        <translation>Es ist nicht genug Platz: {} MB werden gebraucht, {} MB sind frei.</translation>
    </message>
    <message>
        <source>There is nothing to keep yet.</source>
        <translation>Es gibt noch nichts aufzubewahren.</translation>
    </message>
    <message>
        <source>There is nothing to look at yet.</source>
        <translation>Es gibt noch nichts zu sehen.</translation>
    </message>
    <message>
        <source>There is nothing to loop yet.</source>
        <translation>Es gibt noch nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>There is room for twelve hot zones. Remove one of them first.</source>
        <translation>Es ist Platz für zwölf Zonen. Entfernen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>There is too little room for what is made on the way: {}</source>
        <translation>Für Zwischendateien ist zu wenig Platz: {}</translation>
    </message>
    <message>
        <source>There is too little room on the disk for a lesson.</source>
        <translation>Auf dem Datenträger ist zu wenig Platz für eine Lektion.</translation>
    </message>
    <message>
        <source>There is too little room: {} of {}.</source>
        <translation>Es ist zu wenig Platz: {} von {}.</translation>
    </message>
    <message>
        <source>There was a problem creating the company name for the web page.</source>
        <translation>Der Firmenname ließ sich nicht für die Webseite verwenden.</translation>
    </message>
    <message>
        <source>There was a problem creating the {} name for the web page.</source>
        <translation>Der {}-Name ließ sich nicht für die Webseite verwenden.</translation>
    </message>
    <message>
        <source>There was a problem saving this video.</source>
        <translation>Beim Speichern dieses Videos gab es ein Problem.</translation>
    </message>
    <message>
        <source>There was a problem saving this video.

{}</source>
        <translation>Beim Speichern dieses Videos gab es ein Problem.

{}</translation>
    </message>
    <message>
        <source>These buttons and their keys move all videos (A)</source>
        <translation>Diese Knöpfe und ihre Tasten bewegen alle Videos (A)</translation>
    </message>
    <message>
        <source>These videos were taken at different rates and go by the time. Click to go picture by picture</source>
        <translation>Diese Videos haben verschiedene Raten und gehen nach der Zeit. Klicken Sie, um Bild für Bild zu gehen</translation>
    </message>
    <message>
        <source>These videos were taken at different rates and go picture by picture. Click to go by the time</source>
        <translation>Diese Videos haben verschiedene Raten und gehen Bild für Bild. Klicken Sie, um nach der Zeit zu gehen</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Dick</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Dünn</translation>
    </message>
    <message>
        <source>This Library</source>
        <translation>Diese Bibliothek</translation>
    </message>
    <message>
        <source>This camera has nothing to set from here. What it can do, its own buttons or its app do.</source>
        <translation>Diese Kamera lässt sich von hier nicht einstellen. Was sie kann, können ihre eigenen Knöpfe oder ihre App.</translation>
    </message>
    <message>
        <source>This desktop does not let programs record the screen: its service "xdg-desktop-portal" does not answer. It comes with GNOME and KDE; a session of type "Xorg", which the log-in screen offers, does without it.</source>
        <translation>Dieser Desktop lässt Programme den Bildschirm nicht aufnehmen: Sein Dienst "xdg-desktop-portal" antwortet nicht. Er kommt mit GNOME und KDE; eine Sitzung der Art "Xorg", die der Anmeldeschirm anbietet, kommt ohne ihn aus.</translation>
    </message>
    <message>
        <source>This drive has no trash: what is deleted is gone.</source>
        <translation>Dieses Laufwerk hat keinen Papierkorb: Gelöschtes ist weg.</translation>
    </message>
    <message>
        <source>This folder cannot be reached.

%1</source>
        <translation>Dieser Ordner ist nicht zu erreichen.

%1</translation>
    </message>
    <message>
        <source>This graph remembers nothing.</source>
        <translation>Dieser Graph merkt sich nichts.</translation>
    </message>
    <message>
        <source>This is a test of the mail settings of Kinalyx.</source>
        <translation>Dies ist ein Test der Maileinstellungen von Kinalyx.</translation>
    </message>
    <message>
        <source>This key of a remote control captures, too</source>
        <translation>Auch diese Taste einer Fernbedienung nimmt auf</translation>
    </message>
    <message>
        <source>This lesson is already in the Files to Send list.</source>
        <translation>Diese Lektion steht schon in der Sendeliste.</translation>
    </message>
    <message>
        <source>This machine cannot record sound.</source>
        <translation>Dieser Rechner kann keinen Ton aufnehmen.</translation>
    </message>
    <message>
        <source>This macro holds no drawings.</source>
        <translation>Dieses Makro enthält keine Zeichnungen.</translation>
    </message>
    <message>
        <source>This picture cannot be shown.</source>
        <translation>Dieses Bild kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>This picture has gone.</source>
        <translation>Dieses Bild ist nicht mehr da.</translation>
    </message>
    <message>
        <source>This video cannot be opened.</source>
        <translation>Dieses Video lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>This video cannot be opened. It is damaged, or not all of it has arrived.</source>
        <translation>Dieses Video lässt sich nicht öffnen. Es ist beschädigt oder nicht ganz angekommen.</translation>
    </message>
    <message>
        <source>This video cannot be played here. </source>
        <translation>Dieses Video lässt sich hier nicht spielen. </translation>
    </message>
    <message>
        <source>This video cannot be read</source>
        <translation>Dieses Video ist nicht zu lesen</translation>
    </message>
    <message>
        <source>This video has no ruler yet.</source>
        <translation>Dieses Video hat noch kein Maß.</translation>
    </message>
    <message>
        <source>This video is already in the Files to Send list.</source>
        <translation>Dieses Video steht schon in der Sendeliste.</translation>
    </message>
    <message>
        <source>This video is measured in pixels again</source>
        <translation>Dieses Video wird wieder in Pixeln gemessen</translation>
    </message>
    <message>
        <source>This video is not complete. It may still be on its way here.</source>
        <translation>Dieses Video ist nicht vollständig. Vielleicht ist es noch unterwegs.</translation>
    </message>
    <message>
        <source>This video is open in the Analysis section. You must close the video before you can continue.</source>
        <translation>Dieses Video ist in der Analyse geöffnet. Schließen Sie es, ehe Sie fortfahren.</translation>
    </message>
    <message>
        <source>This will copy the current video to your Quick Launch folder. Would you like to continue?</source>
        <translation>Dieses Video wird in Ihren Schnellstart-Ordner kopiert. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>This will remove {} from your system. It must not hold any {} or videos any more.</source>
        <translation>Dies entfernt {} von Ihrem System. Es dürfen keine {} und keine Videos mehr darin sein.</translation>
    </message>
    <message>
        <source>This will reset your ftp settings to the test site. None comes with Kinalyx: the addresses, the login and the password are emptied.

Do you want to continue?</source>
        <translation>Dies setzt Ihre FTP-Einstellungen auf den Testserver zurück. Mit Kinalyx kommt keiner: Adressen, Login und Passwort werden geleert.

Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Three at the most</source>
        <translation>Höchstens drei</translation>
    </message>
    <message>
        <source>Three seconds with the logo and the heading of the printed page</source>
        <translation>Drei Sekunden mit Logo und Überschrift der gedruckten Seite</translation>
    </message>
    <message>
        <source>Throw Away</source>
        <translation>Wegwerfen</translation>
    </message>
    <message>
        <source>Tick New</source>
        <translation>Neue ankreuzen</translation>
    </message>
    <message>
        <source>Tick None</source>
        <translation>Keines ankreuzen</translation>
    </message>
    <message>
        <source>Tick what shall go into the report first</source>
        <translation>Kreuzen Sie zuerst an, was in den Bericht kommt</translation>
    </message>
    <message>
        <source>Time from the picture that is shown</source>
        <translation>Zeit ab dem gezeigten Bild</translation>
    </message>
    <message>
        <source>Time that remains</source>
        <translation>Restliche Zeit</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>To Main Menu</source>
        <translation>Zum Hauptmenü</translation>
    </message>
    <message>
        <source>To the next of ten places</source>
        <translation>Zum nächsten von zehn Plätzen</translation>
    </message>
    <message>
        <source>To, up to three addresses</source>
        <translation>An, bis zu drei Adressen</translation>
    </message>
    <message>
        <source>Too many windows are recording into {}.</source>
        <translation>Zu viele Fenster nehmen in {} auf.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Gesamt %1</translation>
    </message>
    <message>
        <source>Total Cameras</source>
        <translation>Anzahl der Kameras</translation>
    </message>
    <message>
        <source>Total Space Required</source>
        <translation>Benötigter Platz</translation>
    </message>
    <message>
        <source>Tournaments</source>
        <translation>Turniere</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Durchsicht</translation>
    </message>
    <message>
        <source>Transparency Carve</source>
        <translation>Durchsicht-Ausschnitt</translation>
    </message>
    <message>
        <source>Transparency Mode</source>
        <translation>Durchsicht</translation>
    </message>
    <message>
        <source>Trigger level</source>
        <translation>Auslösepegel</translation>
    </message>
    <message>
        <source>Trim End of Video</source>
        <translation>Video hinten schneiden</translation>
    </message>
    <message>
        <source>Trim Excess from the END of the video or Choose Save</source>
        <translation>Schneiden Sie HINTEN weg, was zu viel ist, oder wählen Sie Speichern</translation>
    </message>
    <message>
        <source>Trim Excess from the END of the video or choose to Save New Video.</source>
        <translation>Schneiden Sie HINTEN weg, was zu viel ist, oder speichern Sie das neue Video.</translation>
    </message>
    <message>
        <source>Trim Excess from the FRONT of the video or Choose Save</source>
        <translation>Schneiden Sie VORN weg, was zu viel ist, oder wählen Sie Speichern</translation>
    </message>
    <message>
        <source>Trim Front of Video</source>
        <translation>Video vorn schneiden</translation>
    </message>
    <message>
        <source>Trim Video</source>
        <translation>Video schneiden</translation>
    </message>
    <message>
        <source>Trim by selecting new start and end points, then click the 'Save' button to edit the video.</source>
        <translation>Wählen Sie neuen Anfang und neues Ende, dann schneidet "Speichern" das Video.</translation>
    </message>
    <message>
        <source>Trim excess frames from front and back of the current video.</source>
        <translation>Vorn und hinten von diesem Video wegschneiden, was zu viel ist.</translation>
    </message>
    <message>
        <source>Triple</source>
        <translation>Drei</translation>
    </message>
    <message>
        <source>Triple Screen</source>
        <translation>Drei Fenster</translation>
    </message>
    <message>
        <source>Triple Screen, side by side</source>
        <translation>Drei Fenster nebeneinander</translation>
    </message>
    <message>
        <source>Triple {Vertical}</source>
        <translation>Drei {nebeneinander}</translation>
    </message>
    <message>
        <source>Triple, side by side</source>
        <translation>Drei nebeneinander</translation>
    </message>
    <message>
        <source>True Frame Rate</source>
        <translation>Wahre Bildrate</translation>
    </message>
    <message>
        <source>True Frame Rate...</source>
        <translation>Wahre Bildrate...</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Turn: drag round this handle</source>
        <translation>Drehen: um diesen Griff ziehen</translation>
    </message>
    <message>
        <source>Turns the grid of the current window on or off (F12)</source>
        <translation>Schaltet das Gitter in diesem Fenster ein oder aus (F12)</translation>
    </message>
    <message>
        <source>Twice the pictures, of half the height</source>
        <translation>Doppelt so viele Bilder von halber Höhe</translation>
    </message>
    <message>
        <source>Two Cam</source>
        <translation>2 Kameras</translation>
    </message>
    <message>
        <source>Type a name</source>
        <translation>Namen eingeben</translation>
    </message>
    <message>
        <source>Type a name for the video.</source>
        <translation>Geben Sie dem Video einen Namen.</translation>
    </message>
    <message>
        <source>Type another name for the next video</source>
        <translation>Einen anderen Namen für das nächste Video eingeben</translation>
    </message>
    <message>
        <source>Type the FTP address first.</source>
        <translation>Geben Sie zuerst die FTP-Adresse ein.</translation>
    </message>
    <message>
        <source>Type the length of the line first</source>
        <translation>Geben Sie zuerst die Länge ein</translation>
    </message>
    <message>
        <source>Type the new name of {}.</source>
        <translation>Geben Sie den neuen Namen von {} ein.</translation>
    </message>
    <message>
        <source>Type, then press Enter</source>
        <translation>Schreiben, dann Eingabetaste</translation>
    </message>
    <message>
        <source>Unable to connect to server to check for updates.</source>
        <translation>Keine Verbindung zum Server, um nach Neuem zu sehen.</translation>
    </message>
    <message>
        <source>Unable to delete the video. Try rebooting, then try again.</source>
        <translation>Das Video lässt sich nicht löschen. Starten Sie den Rechner neu und versuchen Sie es wieder.</translation>
    </message>
    <message>
        <source>Unable to locate the background picture named {}. The default picture will be reset.</source>
        <translation>Das Hintergrundbild {} ist nicht zu finden. Es gilt wieder das mitgelieferte Bild.</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Undo Last Open</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undock the Play Bar</source>
        <translation>Leiste ablösen</translation>
    </message>
    <message>
        <source>Unfinished Lesson</source>
        <translation>Unfertige Lektion</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Unlock the videos</source>
        <translation>Videos lösen</translation>
    </message>
    <message>
        <source>Unlock the videos first</source>
        <translation>Lösen Sie zuerst die Videos</translation>
    </message>
    <message>
        <source>Until Here</source>
        <translation>Bis hier</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Up Arrow - Rewind</source>
        <translation>Pfeil auf - An den Anfang</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Upload speed {}kb per second</source>
        <translation>{}kb je Sekunde</translation>
    </message>
    <message>
        <source>Uploading to web....</source>
        <translation>Wird ins Web geladen....</translation>
    </message>
    <message>
        <source>Upright, 1080 x 1920</source>
        <translation>Hochkant, 1080 x 1920</translation>
    </message>
    <message>
        <source>Use the 'Webcam and Tuner' selection if you are using a webcam, tuner\video capture card, or tuner cable. To get started, click the button below and choose the webcam or tuner card from the dropdown list.

A telephone on a tripod that shows its picture on the network is a camera for Kinalyx too: give its address under Cameras on the Network.</source>
        <translation>Wählen Sie 'Webcam', wenn Sie eine Webcam, eine Aufnahmekarte oder ein Tunerkabel benutzen. Klicken Sie zum Anfang unten auf den Knopf und wählen Sie Webcam oder Karte aus der Liste.

Auch ein Telefon auf dem Stativ, das sein Bild ins Netzwerk gibt, ist für Kinalyx eine Kamera: Geben Sie seine Adresse unter Kameras im Netzwerk an.</translation>
    </message>
    <message>
        <source>VIDEOS</source>
        <translation>VIDEOS</translation>
    </message>
    <message>
        <source>Vid1</source>
        <translation>Vid1</translation>
    </message>
    <message>
        <source>Vid1             l            Vid2</source>
        <translation>Vid1             l            Vid2</translation>
    </message>
    <message>
        <source>Vid2</source>
        <translation>Vid2</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video %1 back one frame; hold to go on</source>
        <translation>Video %1 ein Bild zurück; halten geht weiter</translation>
    </message>
    <message>
        <source>Video %1 forward one frame; hold to go on</source>
        <translation>Video %1 ein Bild vor; halten geht weiter</translation>
    </message>
    <message>
        <source>Video Capture</source>
        <translation>Videoaufnahme</translation>
    </message>
    <message>
        <source>Video Colors</source>
        <translation>Bildschirmfarben</translation>
    </message>
    <message>
        <source>Video Display Rate is {}%</source>
        <translation>Anzeigerate der Videos: {}%</translation>
    </message>
    <message>
        <source>Video Files (*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob)|*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob|All Files (*.*)|*.*</source>
        <translation>Videodateien (*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob)|*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Video Lessons by {}</source>
        <translation>Videolektionen von {}</translation>
    </message>
    <message>
        <source>Video Library</source>
        <translation>Videobibliothek</translation>
    </message>
    <message>
        <source>Video Marks Off</source>
        <translation>Marken löschen</translation>
    </message>
    <message>
        <source>Video Name</source>
        <translation>Videoname</translation>
    </message>
    <message>
        <source>Video Naming</source>
        <translation>Namen der Videos</translation>
    </message>
    <message>
        <source>Video Saved Successfully.</source>
        <translation>Video gespeichert.</translation>
    </message>
    <message>
        <source>Video Saved.</source>
        <translation>Video gespeichert.</translation>
    </message>
    <message>
        <source>Video Saved... Restarting...</source>
        <translation>Video gespeichert... Es geht weiter...</translation>
    </message>
    <message>
        <source>Video Statistics</source>
        <translation>Angaben zum Video</translation>
    </message>
    <message>
        <source>Video Successfully Deleted!</source>
        <translation>Video gelöscht!</translation>
    </message>
    <message>
        <source>Video Timer</source>
        <translation>Zeitmesser</translation>
    </message>
    <message>
        <source>Video Window 1</source>
        <translation>Videofenster 1</translation>
    </message>
    <message>
        <source>Video Window 2</source>
        <translation>Videofenster 2</translation>
    </message>
    <message>
        <source>Video notes</source>
        <translation>Notizen zum Video</translation>
    </message>
    <message>
        <source>Video renamed successfully.</source>
        <translation>Video umbenannt.</translation>
    </message>
    <message>
        <source>Video successfully added to the Files to Send list.</source>
        <translation>Video in die Sendeliste aufgenommen.</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Videos and folders to open.</source>
        <translation>Videos und Ordner, die geöffnet werden.</translation>
    </message>
    <message>
        <source>Videos are still being sent.</source>
        <translation>Videos werden noch gesendet.</translation>
    </message>
    <message>
        <source>Videos are still being sent. Do you want to give that up?</source>
        <translation>Videos werden noch gesendet. Möchten Sie das aufgeben?</translation>
    </message>
    <message>
        <source>Videos on "%1"</source>
        <translation>Videos auf "%1"</translation>
    </message>
    <message>
        <source>Videos on File</source>
        <translation>Videos im Archiv</translation>
    </message>
    <message>
        <source>Videos on the device</source>
        <translation>Videos auf dem Gerät</translation>
    </message>
    <message>
        <source>Videos that arrive in this folder appear here.

%1</source>
        <translation>Videos, die in diesem Ordner ankommen, erscheinen hier.

%1</translation>
    </message>
    <message>
        <source>Videos|{}|All files|*</source>
        <translation>Videos|{}|Alle Dateien|*</translation>
    </message>
    <message>
        <source>Volume at full speed</source>
        <translation>Lautstärke bei vollem Tempo</translation>
    </message>
    <message>
        <source>WRITING</source>
        <translation>SCHREIBT</translation>
    </message>
    <message>
        <source>Waiting for a Drive</source>
        <translation>Warten auf ein Laufwerk</translation>
    </message>
    <message>
        <source>Warning! If the network path is invalid at any time, the program will not function. Are you sure you want to continue?</source>
        <translation>Achtung! Solange der Netzwerkpfad nicht stimmt, arbeitet das Programm nicht. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Warning! This will remove the video with its drawings and notes from your system.</source>
        <translation>Achtung! Dies entfernt das Video mit seinen Zeichnungen und Notizen von Ihrem System.</translation>
    </message>
    <message>
        <source>Warning! This will remove the {} videos with their drawings and notes from your system.</source>
        <translation>Achtung! Dies entfernt die {} Videos mit ihren Zeichnungen und Notizen von Ihrem System.</translation>
    </message>
    <message>
        <source>Warning! You are about to export to the C drive. Are you sure you want to continue?</source>
        <translation>Achtung! Sie sind dabei, auf das Laufwerk C zu exportieren. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Warning!!! This will remove the {}, the {} profile, and all of the {} videos from your system.</source>
        <translation>Achtung!!! Dies entfernt {}, {}-Profil und alle {}-Videos von Ihrem System.</translation>
    </message>
    <message>
        <source>Way of transfer</source>
        <translation>Art der Übertragung</translation>
    </message>
    <message>
        <source>Weaknesses</source>
        <translation>Schwächen</translation>
    </message>
    <message>
        <source>Web Space</source>
        <translation>Webspace</translation>
    </message>
    <message>
        <source>Web address, as a browser finds it</source>
        <translation>Webadresse, wie ein Browser sie findet</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Webcam or Analog Capture Card</source>
        <translation>Webcam oder analoge Aufnahmekarte</translation>
    </message>
    <message>
        <source>Webcam, Tuner Card/Cable</source>
        <translation>Webcam, Tunerkarte/-kabel</translation>
    </message>
    <message>
        <source>Welcome to Kinalyx</source>
        <translation>Willkommen bei Kinalyx</translation>
    </message>
    <message>
        <source>Welcome to the
Kinalyx
Motion
Analysis
Program</source>
        <translation>Willkommen bei
Kinalyx
Bewegungsanalyse
für Ihren
Unterricht</translation>
    </message>
    <message>
        <source>What Is Done to Videos</source>
        <translation>Was mit Videos geschieht</translation>
    </message>
    <message>
        <source>What answers is no {}. See whether name and port of "{}" are right.</source>
        <translation>Was antwortet, ist kein {}. Sehen Sie nach, ob Name und Port von "{}" stimmen.</translation>
    </message>
    <message>
        <source>What could not all be read is kept as "{}".</source>
        <translation>Was nicht zu lesen war, liegt als "{}" bereit.</translation>
    </message>
    <message>
        <source>What each line of a profile is called</source>
        <translation>Wie jede Zeile eines Profils heißt</translation>
    </message>
    <message>
        <source>What goes in, from the first page to the last</source>
        <translation>Was hineinkommt, von der ersten Seite bis zur letzten</translation>
    </message>
    <message>
        <source>What has been converted and sent already is not done again.</source>
        <translation>Was schon umgewandelt und gesendet ist, wird nicht noch einmal getan.</translation>
    </message>
    <message>
        <source>What has been done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>What is seen here?</source>
        <translation>Was ist hier zu sehen?</translation>
    </message>
    <message>
        <source>What is ticked is copied to %1. Nothing is changed on the device.</source>
        <translation>Angekreuztes wird zu %1 kopiert. Auf dem Gerät wird nichts geändert.</translation>
    </message>
    <message>
        <source>What of all that is plugged into it is heard</source>
        <translation>Was von allem Angeschlossenen zu hören ist</translation>
    </message>
    <message>
        <source>What the macro is made of</source>
        <translation>Woraus das Makro besteht</translation>
    </message>
    <message>
        <source>What the report shows</source>
        <translation>Was der Bericht zeigt</translation>
    </message>
    <message>
        <source>What the student shall read and work on</source>
        <translation>Was zu lesen und zu üben ist</translation>
    </message>
    <message>
        <source>What the student shall read beneath the picture</source>
        <translation>Was unter dem Bild zu lesen sein soll</translation>
    </message>
    <message>
        <source>What was drawn is taken at once; a click takes the line under it; soft lines in colors that stand out</source>
        <translation>Gezeichnetes ist sofort gefasst; ein Klick fasst die Linie darunter; weiche Linien in deutlichen Farben</translation>
    </message>
    <message>
        <source>What was drawn is taken at once; soft lines in colors that stand out</source>
        <translation>Gezeichnetes ist sofort gefasst; weiche Linien in deutlichen Farben</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Gefundenes</translation>
    </message>
    <message>
        <source>What was seen becomes a video of the student (K, Return, Page Down)</source>
        <translation>Was zu sehen war, wird ein Video (K, Eingabetaste, Bild ab)</translation>
    </message>
    <message>
        <source>What you call one person: Student, Golfer, Client ...</source>
        <translation>Ihr Wort für eine Person: Schüler, Klient ...</translation>
    </message>
    <message>
        <source>What you have typed has not been saved. Do you want to close the form without saving it?</source>
        <translation>Was Sie eingegeben haben, ist nicht gespeichert. Möchten Sie das Formular ohne Speichern schließen?</translation>
    </message>
    <message>
        <source>What you want to remember about this %1. Saved by itself.</source>
        <translation>Was Sie sich merken möchten (%1). Wird von selbst gespeichert.</translation>
    </message>
    <message>
        <source>When movement jumps back and forth in a video of two fields</source>
        <translation>Wenn Bewegung in einem Video aus Halbbildern hin und her springt</translation>
    </message>
    <message>
        <source>Where it plays as filmed</source>
        <translation>Wo es spielt wie gefilmt</translation>
    </message>
    <message>
        <source>Where the window is high enough</source>
        <translation>Wo das Fenster hoch genug ist</translation>
    </message>
    <message>
        <source>Where videos come from</source>
        <translation>Woher die Videos kommen</translation>
    </message>
    <message>
        <source>Which camera the framed picture shows (C)</source>
        <translation>Welche Kamera das gerahmte Bild zeigt (C)</translation>
    </message>
    <message>
        <source>Which kinds of video can be opened here</source>
        <translation>Welche Arten von Videos sich hier öffnen lassen</translation>
    </message>
    <message>
        <source>While a lesson is recorded, videos are dropped on a window or opened from the disk</source>
        <translation>Während eine Lektion aufgenommen wird, zieht man Videos auf ein Fenster oder öffnet sie vom Datenträger</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Whole Database</source>
        <translation>Ganze Datenbank</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Width of drawings</source>
        <translation>Breite der Zeichnungen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Window %1</source>
        <translation>Fenster %1</translation>
    </message>
    <message>
        <source>Window mode</source>
        <translation>Art des Fensters</translation>
    </message>
    <message>
        <source>Window {}: {}</source>
        <translation>Fenster {}: {}</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Windows at the start</source>
        <translation>Fenster beim Start</translation>
    </message>
    <message>
        <source>Windows programs</source>
        <translation>Windows-Programme</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Mit</translation>
    </message>
    <message>
        <source>With a page that plays everywhere</source>
        <translation>Mit einer Seite, die überall spielt</translation>
    </message>
    <message>
        <source>With each check a line goes there: the day, and whether you or the start asked. No more, and nothing where the box is empty. While no server stands here nothing is contacted.</source>
        <translation>Mit jeder Prüfung geht eine Zeile dorthin: der Tag, und ob Sie oder der Start gefragt haben. Nicht mehr, und nichts, wo das Häkchen fehlt. Solange hier kein Server steht, wird nichts angesprochen.</translation>
    </message>
    <message>
        <source>With each check a line goes there: the day, and whether you or the start asked. No more.</source>
        <translation>Mit jeder Prüfung geht eine Zeile dorthin: der Tag, und ob Sie oder der Start gefragt haben. Nicht mehr.</translation>
    </message>
    <message>
        <source>With how many pictures a second was this video taken? Slow motion plays more slowly than it was taken; times and speeds go by this rate.</source>
        <translation>Mit wie vielen Bildern je Sekunde wurde dieses Video aufgenommen? Zeitlupe spielt langsamer, als sie aufgenommen wurde; Zeiten und Tempo richten sich nach dieser Rate.</translation>
    </message>
    <message>
        <source>Without Voice</source>
        <translation>Ohne Stimme</translation>
    </message>
    <message>
        <source>Without encryption anybody on the way can read your password.</source>
        <translation>Ohne Verschlüsselung kann jeder unterwegs Ihr Passwort lesen.</translation>
    </message>
    <message>
        <source>Without it what was calibrated last measures every video</source>
        <translation>Ohne dies misst das zuletzt gesetzte Maß jedes Video</translation>
    </message>
    <message>
        <source>Without it, large pictures become tape of 720 x 480, as in earlier versions</source>
        <translation>Ohne dies werden große Bilder zu Band mit 720 x 480, wie in früheren Versionen</translation>
    </message>
    <message>
        <source>Write what you see; it is kept with the video.</source>
        <translation>Schreiben Sie, was Sie sehen; es bleibt beim Video.</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Schreibt</translation>
    </message>
    <message>
        <source>Yahoo takes no password of the account here but an app password: a long one for this program alone. Your Yahoo account makes it under Security, Generate app password.</source>
        <translation>Yahoo nimmt hier nicht das Passwort des Kontos, sondern ein App-Passwort: ein langes nur für dieses Programm. Ihr Yahoo-Konto macht es unter Sicherheit, App-Passwort erzeugen.</translation>
    </message>
    <message>
        <source>Years in Sport</source>
        <translation>Jahre im Sport</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>You and Your Company</source>
        <translation>Sie und Ihre Firma</translation>
    </message>
    <message>
        <source>You are currently running version {} and the latest version is {}. Ask who gave you the address of the server for it: no page from which it could be fetched is set.</source>
        <translation>Sie benutzen die Version {}, die neueste ist {}. Fragen Sie danach, wer Ihnen die Adresse des Servers gab: Es ist keine Seite eingestellt, von der sie zu holen wäre.</translation>
    </message>
    <message>
        <source>You are currently running version {} and the latest version is {}. Would you like to close Kinalyx and update now? If you choose not to update now, you can update later by going to "Program Setup" and clicking the "General" tab.</source>
        <translation>Sie benutzen die Version {}, die neueste ist {}. Möchten Sie Kinalyx jetzt schließen und aktualisieren? Später geht es auch: in der "Einrichtung" unter "Allgemein".</translation>
    </message>
    <message>
        <source>You are running the latest version of the software.</source>
        <translation>Sie haben die neueste Version des Programms.</translation>
    </message>
    <message>
        <source>You may not use this drive. Ask whoever looks after the computer to add you to the group "cdrom", and log in again.</source>
        <translation>Sie dürfen dieses Laufwerk nicht benutzen. Bitten Sie, wer den Rechner betreut, Sie in die Gruppe "cdrom" aufzunehmen, und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>You must add a email address before continuing.</source>
        <translation>Fügen Sie zuerst eine E-Mail-Adresse hinzu.</translation>
    </message>
    <message>
        <source>You must add a valid email address to continue.</source>
        <translation>Ergänzen Sie eine gültige E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>You must add a video before continuing.</source>
        <translation>Fügen Sie zuerst ein Video hinzu.</translation>
    </message>
    <message>
        <source>You must add some videos 1st!</source>
        <translation>Fügen Sie zuerst Videos hinzu!</translation>
    </message>
    <message>
        <source>You must enter a name for the new {}.</source>
        <translation>Geben Sie einen Namen ein ({}).</translation>
    </message>
    <message>
        <source>You must fill in your name and Company name in Program Setup to use this feature.</source>
        <translation>Tragen Sie für diese Funktion in der Einrichtung Ihren Namen und Ihre Firma ein.</translation>
    </message>
    <message>
        <source>You must have a video open in window 1 to continue.</source>
        <translation>Öffnen Sie zuerst ein Video in Fenster 1.</translation>
    </message>
    <message>
        <source>You must have a video open to continue.</source>
        <translation>Öffnen Sie zuerst ein Video.</translation>
    </message>
    <message>
        <source>You must name the lesson before saving!</source>
        <translation>Geben Sie der Lektion vor dem Speichern einen Namen!</translation>
    </message>
    <message>
        <source>You must name the video before saving!</source>
        <translation>Geben Sie dem Video vor dem Speichern einen Namen!</translation>
    </message>
    <message>
        <source>You must restart Kinalyx for this change to take effect.</source>
        <translation>Starten Sie Kinalyx neu, damit diese Änderung gilt.</translation>
    </message>
    <message>
        <source>You must select a Database and {} for the video.</source>
        <translation>Wählen Sie für das Video Datenbank und {}.</translation>
    </message>
    <message>
        <source>You must select a video first.</source>
        <translation>Wählen Sie zuerst ein Video.</translation>
    </message>
    <message>
        <source>You must select a {} before beginning to Record</source>
        <translation>Wählen Sie {}, ehe Sie aufnehmen</translation>
    </message>
    <message>
        <source>You must select a {} before continuing.</source>
        <translation>Wählen Sie zuerst {}.</translation>
    </message>
    <message>
        <source>You must select a {} first.</source>
        <translation>Bitte zuerst {} wählen.</translation>
    </message>
    <message>
        <source>You must select an Instructor or Database first.</source>
        <translation>Wählen Sie zuerst einen Trainer oder eine Datenbank.</translation>
    </message>
    <message>
        <source>You must type a name!</source>
        <translation>Geben Sie einen Namen ein!</translation>
    </message>
    <message>
        <source>Your Passwords</source>
        <translation>Ihre Passwörter</translation>
    </message>
    <message>
        <source>Your TRIM Start and End times are not correct. Please check your Start and End times and try again.</source>
        <translation>Anfang und Ende des Schnitts stimmen nicht. Bitte prüfen Sie beide und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your club or association tells it, if it has one. While nothing stands here nothing is contacted.</source>
        <translation>Ihr Verein oder Verband nennt ihn, wenn er einen hat. Solange hier nichts steht, wird nichts angesprochen.</translation>
    </message>
    <message>
        <source>Your desktop asks which screen may be recorded. Choose it there, and the lesson begins.</source>
        <translation>Ihr Desktop fragt, welcher Bildschirm aufgenommen werden darf. Wählen Sie ihn dort, dann beginnt die Lektion.</translation>
    </message>
    <message>
        <source>Your e-mail address</source>
        <translation>Ihre E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Ihr Name</translation>
    </message>
    <message>
        <source>Your own e-mail address in Program Setup, Internet, is no address.</source>
        <translation>Ihre eigene E-Mail-Adresse in der Einrichtung unter Internet ist keine Adresse.</translation>
    </message>
    <message>
        <source>Your own e-mail address is not set yet. Type it in Program Setup, Internet.</source>
        <translation>Ihre eigene E-Mail-Adresse fehlt noch. Geben Sie sie in der Einrichtung unter Internet ein.</translation>
    </message>
    <message>
        <source>Your voice, %1 s</source>
        <translation>Ihre Stimme, %1 s</translation>
    </message>
    <message>
        <source>Z - Zoom Videos</source>
        <translation>Z - Videos zoomen</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Zone Tool</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom and pan move video %1</source>
        <translation>Zoom und Schwenk bewegen Video %1</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Vergrößern (+)</translation>
    </message>
    <message>
        <source>Zoom of the current window</source>
        <translation>Zoom dieses Fensters</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Verkleinern (-)</translation>
    </message>
    <message>
        <source>a Angle</source>
        <translation>ein Winkel</translation>
    </message>
    <message>
        <source>a Arrow</source>
        <translation>ein Pfeil</translation>
    </message>
    <message>
        <source>a Circle</source>
        <translation>ein Kreis</translation>
    </message>
    <message>
        <source>a Circle from its Center</source>
        <translation>ein Kreis um seinen Mittelpunkt</translation>
    </message>
    <message>
        <source>a Clock Grid</source>
        <translation>ein Uhrgitter</translation>
    </message>
    <message>
        <source>a Line</source>
        <translation>eine Linie</translation>
    </message>
    <message>
        <source>a Parallelogram</source>
        <translation>ein Parallelogramm</translation>
    </message>
    <message>
        <source>a Path Trace</source>
        <translation>eine Spur</translation>
    </message>
    <message>
        <source>a Plus Sign</source>
        <translation>ein Pluszeichen</translation>
    </message>
    <message>
        <source>a Square</source>
        <translation>ein Rechteck</translation>
    </message>
    <message>
        <source>a Zone</source>
        <translation>eine Zone</translation>
    </message>
    <message>
        <source>a loop has no sound</source>
        <translation>eine Schleife hat keinen Ton</translation>
    </message>
    <message>
        <source>a picture cannot be converted</source>
        <translation>ein Bild lässt sich nicht umwandeln</translation>
    </message>
    <message>
        <source>a picture cannot be decoded</source>
        <translation>ein Bild lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>a picture of another size</source>
        <translation>ein Bild anderer Größe</translation>
    </message>
    <message>
        <source>a video of this kind cannot be a single picture; keep two or more. It is unchanged</source>
        <translation>ein Video dieser Art kann nicht aus einem einzigen Bild bestehen; behalten Sie zwei oder mehr. Es ist unverändert</translation>
    </message>
    <message>
        <source>absurd picture size: {} x {}</source>
        <translation>unsinnige Bildgröße: {} x {}</translation>
    </message>
    <message>
        <source>belongs to a server of another name. Compare the name in the settings with what your provider says</source>
        <translation>gehört einem Server mit anderem Namen. Vergleichen Sie den Namen in den Einstellungen mit dem, was Ihr Anbieter sagt</translation>
    </message>
    <message>
        <source>cannot be checked</source>
        <translation>lässt sich nicht prüfen</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>click one end, the corner, the other end</source>
        <translation>erst das eine Ende anklicken, dann die Ecke, dann das andere Ende</translation>
    </message>
    <message>
        <source>counted by the program</source>
        <translation>zählt das Programm</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d. MMM, HH:mm</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <source>editing programs</source>
        <translation>Schnittprogramme</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>foot</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>has run out. Either the server has forgotten to renew it, or the clock of this computer is wrong</source>
        <translation>ist abgelaufen. Entweder hat der Server vergessen, es zu erneuern, oder die Uhr dieses Rechners geht falsch</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>is not valid yet. The clock of this computer may be wrong</source>
        <translation>gilt noch nicht. Vielleicht geht die Uhr dieses Rechners falsch</translation>
    </message>
    <message>
        <source>is signed by nobody whom this computer trusts</source>
        <translation>ist von niemandem unterschrieben, dem dieser Rechner traut</translation>
    </message>
    <message>
        <source>it has just been made by somebody else</source>
        <translation>jemand hat ihn gerade angelegt</translation>
    </message>
    <message>
        <source>it is being written</source>
        <translation>es wird gerade geschrieben</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>loop 1/2</source>
        <translation>Schleife 1/2</translation>
    </message>
    <message>
        <source>loop 1/4</source>
        <translation>Schleife 1/4</translation>
    </message>
    <message>
        <source>loop, still</source>
        <translation>Schleife, steht</translation>
    </message>
    <message>
        <source>mail server</source>
        <translation>Mailserver</translation>
    </message>
    <message>
        <source>meter</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>move</source>
        <translation>verschieben</translation>
    </message>
    <message>
        <source>newer telephones</source>
        <translation>neuere Telefone</translation>
    </message>
    <message>
        <source>no decoder</source>
        <translation>kein Dekoder</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>kein Dekoder für {}</translation>
    </message>
    <message>
        <source>no encoder takes these pictures</source>
        <translation>kein Kodierer nimmt diese Bilder</translation>
    </message>
    <message>
        <source>no lesson has this size</source>
        <translation>keine Lektion hat diese Größe</translation>
    </message>
    <message>
        <source>no picture has this size</source>
        <translation>kein Bild hat diese Größe</translation>
    </message>
    <message>
        <source>no picture of the video can be decoded</source>
        <translation>kein Bild des Videos lässt sich dekodieren</translation>
    </message>
    <message>
        <source>no video stream</source>
        <translation>kein Videostrom</translation>
    </message>
    <message>
        <source>nobody yet</source>
        <translation>noch niemand</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>old discs</source>
        <translation>alte Discs</translation>
    </message>
    <message>
        <source>old imports</source>
        <translation>alte Importe</translation>
    </message>
    <message>
        <source>old telephones (3GP)</source>
        <translation>alte Telefone (3GP)</translation>
    </message>
    <message>
        <source>older cameras, DivX, Xvid</source>
        <translation>ältere Kameras, DivX, Xvid</translation>
    </message>
    <message>
        <source>one click on each picture, which moves on by itself; a right click ends it</source>
        <translation>ein Klick auf jedem Bild, das von selbst weitergeht; ein Rechtsklick beendet</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>kein Arbeitsspeicher mehr</translation>
    </message>
    <message>
        <source>remembers {} s, {} MiB of {}</source>
        <translation>merkt sich {} s, {} MiB von {}</translation>
    </message>
    <message>
        <source>rename</source>
        <translation>umbenennen</translation>
    </message>
    <message>
        <source>server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>still</source>
        <translation>steht</translation>
    </message>
    <message>
        <source>student</source>
        <translation>Schüler</translation>
    </message>
    <message>
        <source>students</source>
        <translation>Schüler</translation>
    </message>
    <message>
        <source>tape camcorders, imported tape</source>
        <translation>Band-Camcorder, importiertes Band</translation>
    </message>
    <message>
        <source>telephones, action cameras, camcorders</source>
        <translation>Telefone, Actionkameras, Camcorder</translation>
    </message>
    <message>
        <source>the clip has no sound</source>
        <translation>der Clip hat keinen Ton</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>the drive cannot be read or written. It may have been pulled out.</source>
        <translation>das Laufwerk ist nicht zu lesen oder zu beschreiben. Vielleicht wurde es abgezogen.</translation>
    </message>
    <message>
        <source>the drive does not answer</source>
        <translation>das Laufwerk antwortet nicht</translation>
    </message>
    <message>
        <source>the drive is not answering</source>
        <translation>das Laufwerk antwortet nicht</translation>
    </message>
    <message>
        <source>the end lies before the start</source>
        <translation>das Ende liegt vor dem Anfang</translation>
    </message>
    <message>
        <source>the file cannot be read there</source>
        <translation>die Datei ist dort nicht zu lesen</translation>
    </message>
    <message>
        <source>the file cannot be read to the end of the cut</source>
        <translation>die Datei ist nicht bis zum Ende des Schnitts zu lesen</translation>
    </message>
    <message>
        <source>the file cannot grow any more</source>
        <translation>die Datei kann nicht weiter wachsen</translation>
    </message>
    <message>
        <source>the file has gone</source>
        <translation>die Datei ist weg</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the last frame lies before the first</source>
        <translation>das letzte Bild liegt vor dem ersten</translation>
    </message>
    <message>
        <source>the new file cannot be completed</source>
        <translation>die neue Datei lässt sich nicht fertigstellen</translation>
    </message>
    <message>
        <source>the notes that are there cannot be read</source>
        <translation>die vorhandenen Notizen sind nicht zu lesen</translation>
    </message>
    <message>
        <source>the old web</source>
        <translation>das alte Web</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>das Bild ist zu groß</translation>
    </message>
    <message>
        <source>the pictures are not all stored in the same way</source>
        <translation>die Bilder sind nicht alle auf dieselbe Weise gespeichert</translation>
    </message>
    <message>
        <source>the profile</source>
        <translation>das Profil</translation>
    </message>
    <message>
        <source>the recording holds no picture</source>
        <translation>die Aufnahme enthält kein Bild</translation>
    </message>
    <message>
        <source>the recording is closed</source>
        <translation>die Aufnahme ist geschlossen</translation>
    </message>
    <message>
        <source>the recording is too badly damaged</source>
        <translation>die Aufnahme ist zu stark beschädigt</translation>
    </message>
    <message>
        <source>the sides of the picture must be even</source>
        <translation>die Seiten des Bildes müssen gerade sein</translation>
    </message>
    <message>
        <source>the sound cannot be read</source>
        <translation>der Ton ist nicht zu lesen</translation>
    </message>
    <message>
        <source>the sound of this video cannot be cut</source>
        <translation>der Ton dieses Videos lässt sich nicht schneiden</translation>
    </message>
    <message>
        <source>the stream cannot be read</source>
        <translation>der Strom ist nicht zu lesen</translation>
    </message>
    <message>
        <source>the video is read-only</source>
        <translation>das Video ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the video stream holds no picture</source>
        <translation>der Videostrom enthält kein Bild</translation>
    </message>
    <message>
        <source>the web</source>
        <translation>das Web</translation>
    </message>
    <message>
        <source>there are a thousand files of that name already</source>
        <translation>es gibt schon tausend Dateien dieses Namens</translation>
    </message>
    <message>
        <source>there is already a file of that name</source>
        <translation>es gibt schon eine Datei dieses Namens</translation>
    </message>
    <message>
        <source>there is already something of that name.</source>
        <translation>dort gibt es schon etwas dieses Namens.</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>es gibt kein Bild</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>auf dem Datenträger ist nicht genug Platz</translation>
    </message>
    <message>
        <source>this drive cannot keep others from reading the file</source>
        <translation>dieses Laufwerk kann andere nicht am Lesen hindern</translation>
    </message>
    <message>
        <source>this is no recording that was broken off</source>
        <translation>dies ist keine abgebrochene Aufnahme</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>dieses Fenster</translation>
    </message>
    <message>
        <source>unknown reason</source>
        <translation>unbekannter Grund</translation>
    </message>
    <message>
        <source>videos in this kind of file cannot be cut</source>
        <translation>Videos in dieser Art von Datei lassen sich nicht schneiden</translation>
    </message>
    <message>
        <source>videos of this kind can be cut at some pictures only, and not at these</source>
        <translation>Videos dieser Art lassen sich nur an manchen Bildern schneiden, und nicht an diesen</translation>
    </message>
    <message>
        <source>webcams, what is imported here</source>
        <translation>Webcams, was hier importiert wird</translation>
    </message>
    <message>
        <source>you alone can read the file</source>
        <translation>nur Sie können die Datei lesen</translation>
    </message>
    <message>
        <source>{0} {1} {2}</source>
        <translation>{0}. {1} {2}</translation>
    </message>
    <message>
        <source>{:g} s ago</source>
        <translation>vor {:g} s</translation>
    </message>
    <message>
        <source>{:g} s behind: first picture in {} s</source>
        <translation>{:g} s zurück: erstes Bild in {} s</translation>
    </message>
    <message>
        <source>{}

{} of {} pictures were shown.</source>
        <translation>{}

{} von {} Bildern wurden gezeigt.</translation>
    </message>
    <message>
        <source>{}  max {}</source>
        <translation>{}  höchstens {}</translation>
    </message>
    <message>
        <source>{} % Free</source>
        <translation>{} % frei</translation>
    </message>
    <message>
        <source>{} (image file)</source>
        <translation>{} (Abbilddatei)</translation>
    </message>
    <message>
        <source>{} - Home key</source>
        <translation>Pos1 - {}</translation>
    </message>
    <message>
        <source>{} - Report</source>
        <translation>{} - Bericht</translation>
    </message>
    <message>
        <source>{} - Videos Attached</source>
        <translation>{} - mit Videos</translation>
    </message>
    <message>
        <source>{} BPP</source>
        <translation>{} BPP</translation>
    </message>
    <message>
        <source>{} Bit</source>
        <translation>{} Bit</translation>
    </message>
    <message>
        <source>{} Choose another microphone, or record without.</source>
        <translation>{} Wählen Sie ein anderes Mikrofon, oder nehmen Sie ohne auf.</translation>
    </message>
    <message>
        <source>{} Err 3</source>
        <translation>{} Err 3</translation>
    </message>
    <message>
        <source>{} Err 4</source>
        <translation>{} Err 4</translation>
    </message>
    <message>
        <source>{} Err 4

{}</source>
        <translation>{} Err 4

{}</translation>
    </message>
    <message>
        <source>{} FPS</source>
        <translation>{} FPS</translation>
    </message>
    <message>
        <source>{} File(s) Imported successfully!</source>
        <translation>{} Datei(en) importiert!</translation>
    </message>
    <message>
        <source>{} File(s) exported successfully!</source>
        <translation>{} Datei(en) exportiert!</translation>
    </message>
    <message>
        <source>{} Files Copied Successfully.</source>
        <translation>{} Dateien kopiert.</translation>
    </message>
    <message>
        <source>{} Frames</source>
        <translation>{} Bilder</translation>
    </message>
    <message>
        <source>{} Name</source>
        <translation>{}-Name</translation>
    </message>
    <message>
        <source>{} Notes</source>
        <translation>{}-Notizen</translation>
    </message>
    <message>
        <source>{} Nothing was changed.</source>
        <translation>{} Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>{} Profile</source>
        <translation>{}-Profil</translation>
    </message>
    <message>
        <source>{} Profiles</source>
        <translation>{}-Profile</translation>
    </message>
    <message>
        <source>{} Profiles Edit Utility</source>
        <translation>{}-Profile bearbeiten</translation>
    </message>
    <message>
        <source>{} Seconds</source>
        <translation>{} Sekunden</translation>
    </message>
    <message>
        <source>{} Successfully Moved to {} .</source>
        <translation>{}: nach {} verschoben.</translation>
    </message>
    <message>
        <source>{} Successfully removed from the system.</source>
        <translation>{}: vom System entfernt.</translation>
    </message>
    <message>
        <source>{} The lists fill as soon as it does.</source>
        <translation>{} Die Listen füllen sich, sobald es antwortet.</translation>
    </message>
    <message>
        <source>{} The old file may lie there under the name "{}".</source>
        <translation>{} Die alte Datei liegt vielleicht dort unter dem Namen "{}".</translation>
    </message>
    <message>
        <source>{} Videos Successfully Deleted!</source>
        <translation>{} Videos gelöscht!</translation>
    </message>
    <message>
        <source>{} What it saw before goes on for {} s.</source>
        <translation>{} Was sie vorher sah, geht noch {} s weiter.</translation>
    </message>
    <message>
        <source>{} What was recorded is kept.</source>
        <translation>{} Was aufgenommen wurde, bleibt.</translation>
    </message>
    <message>
        <source>{} What was recorded is kept. Click Save Video to continue..</source>
        <translation>{} Was aufgenommen wurde, bleibt. Klicken Sie auf Video speichern..</translation>
    </message>
    <message>
        <source>{} What was written is kept.</source>
        <translation>{} Was geschrieben wurde, bleibt.</translation>
    </message>
    <message>
        <source>{} already exists.</source>
        <translation>{} gibt es schon.</translation>
    </message>
    <message>
        <source>{} bytes</source>
        <translation>{} Bytes</translation>
    </message>
    <message>
        <source>{} came or changed while {} was moved, and stayed in the old place: {}</source>
        <translation>{} kam oder änderte sich, während {} verschoben wurde, und blieb am alten Ort: {}</translation>
    </message>
    <message>
        <source>{} cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>{} kann nicht in den Papierkorb. Möchten Sie endgültig löschen?</translation>
    </message>
    <message>
        <source>{} cannot be opened.</source>
        <translation>{} kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>{} cannot be removed.</source>
        <translation>{} kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>{} cannot go into itself.</source>
        <translation>{} kann nicht in sich selbst hinein.</translation>
    </message>
    <message>
        <source>{} could not be removed</source>
        <translation>{} konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>{} could not be removed from its old place: {}</source>
        <translation>{} war vom alten Ort nicht zu entfernen: {}</translation>
    </message>
    <message>
        <source>{} could not be renamed</source>
        <translation>{} konnte nicht umbenannt werden</translation>
    </message>
    <message>
        <source>{} exists already.</source>
        <translation>{} gibt es schon.</translation>
    </message>
    <message>
        <source>{} files selected for download.</source>
        <translation>{} Dateien gewählt.</translation>
    </message>
    <message>
        <source>{} files that the lists do not show: {}</source>
        <translation>{} Dateien, die die Listen nicht zeigen: {}</translation>
    </message>
    <message>
        <source>{} files were copied that cannot be opened. They may be damaged, or be no videos:
</source>
        <translation>{} kopierte Dateien lassen sich nicht öffnen. Sie sind vielleicht beschädigt oder keine Videos:
</translation>
    </message>
    <message>
        <source>{} is a link to another folder.</source>
        <translation>{} ist ein Verweis auf einen anderen Ordner.</translation>
    </message>
    <message>
        <source>{} is no file.</source>
        <translation>{} ist keine Datei.</translation>
    </message>
    <message>
        <source>{} is not connected.</source>
        <translation>{} ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>{} is not connected. Plug it in, and it shows here.</source>
        <translation>{} ist nicht angeschlossen. Stecken Sie sie an, dann ist sie hier zu sehen.</translation>
    </message>
    <message>
        <source>{} lessons</source>
        <translation>{} Lektionen</translation>
    </message>
    <message>
        <source>{} lies too deep in its folders.</source>
        <translation>{} liegt zu tief in seinen Ordnern.</translation>
    </message>
    <message>
        <source>{} of {} Videos Successfully Imported.</source>
        <translation>{} von {} Videos importiert.</translation>
    </message>
    <message>
        <source>{} of {} Videos Successfully exported.....Please wait...</source>
        <translation>{} von {} Videos exportiert.....Bitte warten...</translation>
    </message>
    <message>
        <source>{} of {} files added to the Files to Send list.</source>
        <translation>{} von {} Dateien in die Sendeliste aufgenommen.</translation>
    </message>
    <message>
        <source>{} of {} files added to the Files to Send list; the others are in it already.</source>
        <translation>{} von {} Dateien in die Sendeliste aufgenommen; die anderen stehen schon darin.</translation>
    </message>
    <message>
        <source>{} of {} videos were moved.</source>
        <translation>{} von {} Videos wurden verschoben.</translation>
    </message>
    <message>
        <source>{} of {} videos were sent to Analysis. {}</source>
        <translation>{} von {} Videos wurden zur Analyse gesendet. {}</translation>
    </message>
    <message>
        <source>{} pictures are queued for emailing, and no more fit into one mail. Send or delete some of them first.</source>
        <translation>{} Bilder warten auf das Senden, und mehr passen nicht in eine Mail. Senden oder löschen Sie zuerst einige.</translation>
    </message>
    <message>
        <source>{} pictures have not been sent by e-mail. Leaving the analysis section deletes them. Do you want to leave?</source>
        <translation>{} Bilder wurden nicht per E-Mail gesendet. Wer die Analyse verlässt, löscht sie. Möchten Sie gehen?</translation>
    </message>
    <message>
        <source>{} pictures of an earlier session have not been sent. Do you want to delete them? If not, they come before the new ones.</source>
        <translation>{} Bilder einer früheren Sitzung wurden nicht gesendet. Möchten Sie sie löschen? Sonst kommen sie vor den neuen.</translation>
    </message>
    <message>
        <source>{} rename cancelled.</source>
        <translation>{}: Umbenennen abgebrochen.</translation>
    </message>
    <message>
        <source>{} seconds | {}/{} frames  </source>
        <translation>{} Sekunden | {}/{} Bilder  </translation>
    </message>
    <message>
        <source>{} settings in {} could not be read ({}), so their first values hold for this run</source>
        <translation>{} Einstellungen in {} waren nicht zu lesen ({}); ihre ersten Werte gelten für diesen Lauf</translation>
    </message>
    <message>
        <source>{} still has {} or videos. Move or delete them first.</source>
        <translation>{} hat noch {} oder Videos. Verschieben oder löschen Sie diese zuerst.</translation>
    </message>
    <message>
        <source>{} successfully added!</source>
        <translation>{} hinzugefügt!</translation>
    </message>
    <message>
        <source>{} successfully removed from the system.</source>
        <translation>{}: vom System entfernt.</translation>
    </message>
    <message>
        <source>{} successfully renamed.</source>
        <translation>{}: umbenannt.</translation>
    </message>
    <message>
        <source>{} this database</source>
        <translation>die Datenbank {}</translation>
    </message>
    <message>
        <source>{} this {}</source>
        <translation>{1} {0}</translation>
    </message>
    <message>
        <source>{} videos could not be taken:
</source>
        <translation>{} Videos konnten nicht genommen werden:
</translation>
    </message>
    <message>
        <source>{} videos left to import</source>
        <translation>Noch {} Videos zu importieren</translation>
    </message>
    <message>
        <source>{} videos on "{}", all of them new</source>
        <translation>{} Videos auf "{}", alle neu</translation>
    </message>
    <message>
        <source>{} videos on "{}", {} of them new</source>
        <translation>{} Videos auf "{}", davon {} neu</translation>
    </message>
    <message>
        <source>{} videos successfully moved.</source>
        <translation>{} Videos verschoben.</translation>
    </message>
    <message>
        <source>{} videos were closed.</source>
        <translation>{} Videos wurden geschlossen.</translation>
    </message>
    <message>
        <source>{} videos were sent to Analysis.</source>
        <translation>{} Videos wurden zur Analyse gesendet.</translation>
    </message>
    <message>
        <source>{} videos with all drawings and notes</source>
        <translation>{} Videos mit allen Zeichnungen und Notizen</translation>
    </message>
    <message>
        <source>{} {} without videos went along with profile and notes.</source>
        <translation>{} {} ohne Videos kamen mit Profil und Notizen mit.</translation>
    </message>
    <message>
        <source>{} {}'s</source>
        <translation>{} × {}</translation>
    </message>
    <message>
        <source>{}% complete</source>
        <translation>{}% fertig</translation>
    </message>
    <message>
        <source>{}, {} a second</source>
        <translation>{}, {} je Sekunde</translation>
    </message>
    <message>
        <source>{}, {} of {}</source>
        <translation>{}, {} von {}</translation>
    </message>
    <message>
        <source>{}, {}% complete</source>
        <translation>{}, {}% fertig</translation>
    </message>
    <message>
        <source>{}. It is not there any more: somebody else has renamed, moved or deleted it.</source>
        <translation>{}. Es ist nicht mehr da: Jemand hat es umbenannt, verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>{}Camera {} recorded nothing.</source>
        <translation>{}Kamera {} hat nichts aufgenommen.</translation>
    </message>
    <message>
        <source>{}empty.</source>
        <translation>{}leer.</translation>
    </message>
    <message>
        <source>{}has been written already and cannot be erased.</source>
        <translation>{}ist schon beschrieben und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>{}holds something already, and can be erased.</source>
        <translation>{}enthält schon etwas und kann gelöscht werden.</translation>
    </message>
    <message>
        <source>{}keypad {}</source>
        <translation>{}Ziffernblock {}</translation>
    </message>
    <message>
        <source>{}{}what the drive gave back is not what was written to it. The original is still in its place. Try again; if it happens once more, the drive, the card reader or its cable is failing.</source>
        <translation>{}{}was das Laufwerk zurückgab, ist nicht, was darauf geschrieben wurde. Das Original ist noch an seinem Platz. Versuchen Sie es wieder; geschieht es noch einmal, versagt das Laufwerk, der Kartenleser oder sein Kabel.</translation>
    </message>
    <message>
        <source>{}°- {}° angle H-V     {}</source>
        <translation>{}°- {}° Winkel W-S     {}</translation>
    </message>
</context>
</TS>
