<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>„%@“ kann nicht geöffnet werden.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Die Datei fehlt, ist beschädigt oder von einer Art, die Lumaro nicht kennt (Fehler %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>„%@“ lässt sich vielleicht nicht richtig abspielen.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Teile des Films können nicht dekodiert werden (Fehler %d). Mit „Fortfahren“ wird es trotzdem versucht.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Es gibt nichts abzuspielen.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Keine der angegebenen Dateien ist ein Film, den Lumaro abspielen kann. Sie können andere auswählen.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Das ist ein Ordner oder ein Gerät, keine Datei.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Sie dürfen die Datei nicht lesen.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Das ist kein Film, den Lumaro abspielen kann.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Es kam nicht rechtzeitig eine Antwort.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Die Bibliotheken, die Filme öffnen, fehlen.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Adressen dieser Art kennt Lumaro nicht.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Es gibt keinen Server dieses Namens oder keine Verbindung zum Netz.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Der Server ist nicht erreichbar.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Der Server hat die Verbindung abgelehnt.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Die Verbindung zum Server ist abgebrochen.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Der Server sendet Dateien nur von Anfang an, und was zuerst gebraucht wird, steht am Ende dieses Films. Zum Abspielen muss er heruntergeladen werden.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Der Server verlangt Namen und Passwort (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Der Server erlaubt es nicht (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Der Server hat keine solche Datei (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Der Server hat die Anfrage zurückgewiesen.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Der Server hat mit einem eigenen Fehler geantwortet.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>In diesem Ordner ist kein Film.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Die Datei ist keine Playlist.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>Die Playlist nennt keine Filme.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Die Playlist ist größer als 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Die Playlist ist zu lang. Nur die ersten 100.000 Einträge wurden geöffnet.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Zu viele Playlists verweisen aufeinander. Diese wurde ausgelassen.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Einträge auf Windows-Laufwerken wurden ausgelassen (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Die Playlist kommt aus einem Netz. Einträge, die Dateien dieses Computers nennen, wurden ausgelassen (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Einträge, die weder eine Datei noch eine Adresse nennen, wurden ausgelassen (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Ordner, die nicht gelesen werden dürfen (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Nicht alles konnte durchsucht werden.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… und %@ weitere.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>„%@“: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ Dateien können nicht geöffnet werden.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ Filme lassen sich vielleicht nicht richtig abspielen.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Kein Film, den Lumaro abspielen kann, liegt in:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Puffert: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Stockt: keine Daten vom Server</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Lädt: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Fortgesetzt bei %@
%@: Von Anfang an</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Sucht Filme: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ Datei gefunden …</numerusform>
            <numerusform>%@ Dateien gefunden …</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Öffnen …</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Menü leeren und Positionen vergessen</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Nach neuen Versionen suchen?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro kann ab und zu nachsehen, ob es eine neuere Version gibt. Nichts über Sie oder Ihre Filme wird gesendet. In den Einstellungen können Sie das ändern.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Die Suche nach einer neuen Version ist fehlgeschlagen.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Kein Server war erreichbar. Prüfen Sie die Internetverbindung oder versuchen Sie es später noch einmal.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro ist auf dem neuesten Stand.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Sie haben die neueste Version.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Eine neuere Version von Lumaro ist verfügbar.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@-Version %@ kann jetzt geladen werden.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Jetzt laden …</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>Diese Version &amp;überspringen</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Gefällt Ihnen Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro ist kostenlos. Eine Spende hilft, es am Leben zu halten.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Spenden …</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Neuere %@-Version %@ verfügbar</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Kein Server erreichbar</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>Release</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nie</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Ende</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Vorspulen ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Zurückspulen ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d s vor</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d s zurück</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Bild vor</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Bild zurück</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Nächster: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Voriger: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Nächster Bildschirm</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Voriger Bildschirm</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Ruhezustand</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Computer neu starten</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Computer ausschalten</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Abmelden</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Der Neustart ist fehlgeschlagen: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Das Ausschalten ist fehlgeschlagen: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Das Abmelden ist fehlgeschlagen: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Strg+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Umschalt+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Medien Wiedergabe</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Medien Stopp</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Medien Weiter</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Medien Zurück</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Medien Lauter</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Medien Leiser</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Medien Stumm</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Der Ruhezustand ist fehlgeschlagen: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Halbe Größe</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Normale Größe</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Doppelte Größe</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Volle Größe</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Volle Breite</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Volle Höhe</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Größer</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Steuerleiste: ein</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Steuerleiste: aus</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Lautstärke: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Stumm: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Stumm</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d %%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Zeit: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Wiederholen: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Einen</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Untertitel: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Reparatur: ein</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Reparatur: aus</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d Zeile davon ist unlesbar.</numerusform>
            <numerusform>%d Zeilen davon sind unlesbar.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d Bild davon ist unlesbar.</numerusform>
            <numerusform>%d Bilder davon sind unlesbar.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>„Reparieren“ (Menü Untertitel) kann helfen.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Mit %@ einen Film öffnen</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>oder Dateien hierher ziehen. %@ zeigt alle Tasten.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Tippen Sie, was Sie suchen. Jeder Befehl steht auch im Menü: am oberen Rand des Bildschirms oder unter der rechten Maustaste.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Was möchten Sie tun?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Kein Befehl enthält diese Wörter.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Ansehen und im Film bewegen</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Lauter, leiser, stumm</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Mitlesen</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Das Bild größer sehen, und was läuft</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Zwischen den Filmen wählen</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Auf einen anderen Bildschirm wechseln</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Öffnen, einrichten und beenden</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Hilfe finden</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>URL öffnen …</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>URLs öffnen …</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Playlist sichern …</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Playlist sichern</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Die Playlist in eine Datei sichern</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>„%@“ kann nicht gesichert werden.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Sie haben dort keine Schreibberechtigung.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Der Datenträger kann nicht beschrieben werden.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Über Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Nach neuer Version suchen …</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Halbe Größe</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normale Größe</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Doppelte Größe</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Volle Größe</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Bildschirmfüllend</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Volle Breite</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Volle Höhe</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Größer</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Steuerleiste zeigen</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Leiste über dem Bild</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Leiste über dem Bild: aus, immer, bei bewegtem Zeiger</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Leiste über dem Bild: Aus</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Leiste über dem Bild: Immer</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Leiste über dem Bild: Bei bewegtem Zeiger</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Spuren...</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Ton und Untertitel in einem Menü</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Ton</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Steuerleiste verbergen</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Nächste Anzeige</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Vorige Anzeige</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Zurückspulen</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Vorspringen</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Zurückspringen</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Nächster Film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Voriger Film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Nicht wiederholen</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Nicht wiederholen</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Einen wiederholen</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Alle wiederholen</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Lauter</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Leiser</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normale Lautstärke</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Lautlos</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Nächster Bildschirm</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Voriger Bildschirm</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Mehr…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Die ganze Liste: Filme suchen, verschieben und entfernen</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ von %@ Filmen</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro-Hilfe</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Filme öffnen</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Halbe, normale und doppelte Größe</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>An den Bildschirm, seine Breite, seine Höhe anpassen</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Größer und kleiner</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Steuerleiste</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Anzeige im Bild: Zeit, Film, Untertitel, Wiederholen, Lautstärke</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Wiedergabe, Pause, zurück zur normalen Geschwindigkeit</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Vor und zurück: bildweise in der Pause, immer schneller bei der Wiedergabe</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Vor- und zurückspringen</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Anfang und Ende des Films</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Nächster und voriger Film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Doppelklick</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Vorwärts-Taste</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Rad auf</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Rad ab</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Wiederholen: aus, einen, alle</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Lauter und leiser</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Nächste und vorige Untertitel</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Ton früher</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Ton später</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Ton wie in der Datei</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Ton früher und später</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Ton zu den Zeiten der Datei</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Ton verzögert: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Untertitel hinzufügen …</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Untertitel hinzufügen</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Dem Film eine Untertiteldatei hinzufügen</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>„%@“ enthält keine lesbaren Untertitel</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Dem Film als Untertitel hinzufügen</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Früher zeigen</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Später zeigen</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Wie in der Datei</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Untertitel früher zeigen</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Untertitel später zeigen</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Untertitel zu den Zeiten ihrer Datei</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Untertitel früher und später</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Untertitel zu den Zeiten ihrer Datei</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Erste Zeile wird jetzt gesprochen</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Letzte Zeile wird jetzt gesprochen</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>In Gleichlauf durch zwei Zeilen: die eine drücken, während die erste Zeile gesprochen wird, die andere bei der letzten</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Größere Schrift</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Größere Untertitel</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Kleinere Untertitel</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Untertitel größer und kleiner</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Höher</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Tiefer</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Höhere Untertitel</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Tiefere Untertitel</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Untertitel höher und tiefer</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Untertitel verzögert: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Größe der Untertitel: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Höhe der Untertitel: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Die Zeilen lassen sich nicht in Gleichlauf bringen: sie würden mehr als doppelt so schnell oder langsam</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Beschädigte Untertitel reparieren</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Nächster und voriger Bildschirm</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Westeuropäisch (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Westeuropäisch (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Westeuropäisch (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Westeuropäisch (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Westeuropäisch (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Westeuropäisch (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>US-Lateinisch (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Mitteleuropäisch (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Mitteleuropäisch (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Mitteleuropäisch (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Mitteleuropäisch (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Westeuropäisch (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Mitteleuropäisch (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordisch (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Isländisch (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordisch (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Baltisch (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Baltisch (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Baltisch (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Keltisch (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Kyrillisch (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Kyrillisch (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Kyrillisch (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukrainisch (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Kyrillisch (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Kyrillisch (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russisch (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Griechisch (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Griechisch (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Griechisch (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Griechisch (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Griechisch (DOS Griechisch 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Türkisch (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Türkisch (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Türkisch (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Türkisch (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebräisch (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebräisch (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebräisch (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabisch (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabisch (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabisch (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugiesisch (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Kanadisches Französisch (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thailändisch (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thailändisch (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamesisch (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japanisch (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japanisch (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japanisch (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japanisch (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japanisch (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japanisch (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chinesisch (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Vereinfachtes Chinesisch (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Vereinfachtes Chinesisch (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Vereinfachtes Chinesisch (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Vereinfachtes Chinesisch (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chinesisch (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Traditionelles Chinesisch (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Traditionelles Chinesisch (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Traditionelles Chinesisch (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Traditionelles Chinesisch (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Koreanisch (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Koreanisch (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Koreanisch (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Die Farbe der Buchstaben und der Linie um die Fläche</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Die Familie der Buchstaben</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>In Punkten eines 1080 Punkte hohen Bildschirms; auf einem höheren wachsen die Buchstaben mit</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Schatten &amp;zeichnen</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Ein Schatten hält Buchstaben auf jedem Bild lesbar</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>F&amp;arbe:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Die Farbe des Schattens, und wie viel durch ihn scheint</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>&amp;Weichheit:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Wie breit der Rand des Schattens verläuft, in Punkten</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Nach &amp;rechts:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Wie weit der Schatten nach rechts fällt, in Punkten; unter 0 nach links</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Nach &amp;oben:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Wie weit der Schatten nach oben fällt, in Punkten; unter 0 nach unten</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertikal:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>In welcher Höhe es steht</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Horizonta&amp;l:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>An welcher Seite des Bildschirms es steht</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Im Bild</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Am Bildrand</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Unter dem Bild</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Fläche</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Die Farbe um das Bild herum</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Fläche &amp;hinterlegen</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Eine Fläche hinter dem Text</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Far&amp;be:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Die Farbe der Fläche, und wie viel durch sie scheint</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Abger&amp;undete Ecken</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Die Ecken der Fläche werden abgerundet</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Rad&amp;ius:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Wie weit die Ecken abgerundet werden, in Punkten</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Rah&amp;men zeichnen</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Eine Linie um die Fläche, in der Farbe des Texts</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Brei&amp;te:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Wie breit die Linie ist, in Punkten</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Blenden und Deckkraft</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>&amp;Einblenden:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Wie lange das Einblenden von ganz durchsichtig bis ganz deckend dauert; 0 zeigt es sofort</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>Ausble&amp;nden:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Wie lange das Ausblenden von ganz deckend bis ganz durchsichtig dauert; 0 verbirgt es sofort</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Dauer:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Wie lange es zwischen Einblenden und Ausblenden bleibt</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>De&amp;ckkraft verborgen:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Wie viel davon bleibt, während es verborgen ist: 0 % ist nichts</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>Dec&amp;kkraft sichtbar:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Wie deckend es gezeigt wird: unter 100 % scheint das Bild durch</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Bringt diesen Stil auf seine ursprünglichen Werte zurück</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Zurücksetzen rückgängig machen</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Bringt den Stil zurück, wie er vorher war</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Muster</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Wie es über dem Film aussieht, oder über einem hellen und einem dunklen Bild</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Was für ein Abend!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Lautstärke: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Start ohne Datei</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;Nichts öffnen</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro beginnt mit leerem Bildschirm</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Letzte Playlist &amp;öffnen</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Die Filme vom letzten Mal kommen zurück, an der Stelle, an der sie verlassen wurden</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Nach &amp;Dateien fragen</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro beginnt mit dem Fenster, das Filme öffnet</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Wie groß Filme gezeigt werden, ab jetzt und beim nächsten Start</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Eigene Vergrößerung</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Fens&amp;ter:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Ob der Film über den Fenstern anderer Programme bleibt, solange Lumaro die Tastatur hat</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Leiste über de&amp;m Bild:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Wo keine darunter steht: eine Leiste, die mit dem Zeiger kommt oder bleibt</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Bei bewegtem Zeiger</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Zwischen anderen Fenstern</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Über anderen Fenstern</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Steuerleiste ze&amp;igen</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Die Leiste mit Wiedergabe, Zeit und Lautstärke unter dem Bild</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>&amp;Bildschirmhelligkeit festlegen:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Solange Lumaro läuft; danach ist der Bildschirm so hell wie zuvor</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Wie hell der Bildschirm ist, solange Lumaro läuft</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Helligkeit des Bildschirms</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Bi&amp;ld</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>S&amp;ättigung:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>F&amp;arbton:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Jeder Film wird damit gezeigt, der auf dem Bildschirm sofort</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Die Helligkeit dieses Bildschirms lässt sich nicht einstellen</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Sp&amp;rungweite:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Um wie viele Sekunden ein Sprung vor- oder zurückgeht</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Lautstär&amp;ke für den nächsten Start merken</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro beginnt so laut, wie es geendet hat</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Solange ein anderes Programm die Tastatur hat</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Film an&amp;halten</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Er läuft weiter, wenn Sie zurückkommen</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Fenster &amp;verbergen</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Das Fenster wird minimiert und kommt mit Lumaro zurück</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Filme f&amp;ortsetzen, wo sie verlassen wurden</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Positionen und Untertitel der letzten tausend Filme werden gemerkt, und das Menü „Zuletzt geöffnet“ führt sie auf</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Playlist</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Wie hinzu&amp;gefügt</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Filme laufen in der Reihenfolge, in der sie gegeben wurden</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Ge&amp;mischt</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Filme laufen in zufälliger Reihenfolge</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Sor&amp;tiert</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Filme laufen nach ihren Namen</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>&amp;Zahlen nach ihrem Wert vergleichen</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Teil 2 kommt vor Teil 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Nach dem ganzen Pfa&amp;d</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Ordner bleiben zusammen</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Nur nach dem Datei&amp;namen</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>In welchen Ordnern die Filme auch liegen</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>W&amp;iederholung:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Was wiederholt wird, ab jetzt und in neuen Playlists</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Geöffnetes &amp;abspielen</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Sonst werden Filme gezeigt und warten</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Mit dem nä&amp;chsten Film fortfahren</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Endet einer, spielt der nächste der Liste</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Am Ende der Liste &amp;beenden</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Sofern sie nicht wiederholt wird</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Untertitel</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Anzeige</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Untertitel &amp;anzeigen</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Auch bei Filmen, die später geöffnet werden</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Auszeich&amp;nungen darstellen</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Kursives, Farben und Plätze in Untertiteldateien wirken; sonst werden sie weggelassen</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Untertitel&amp;dateien neben Filmen suchen</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Wenn ein Film geöffnet wird</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Wie die Buchstaben von Untertiteldateien gespeichert sind; Automatisch erkennt es an der Datei</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Kodierung von Untertiteldateien</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Bildrate:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Für Untertiteldateien, die Bilder statt Sekunden zählen</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Wie der Film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Beschädigte Untertiteldateien &amp;reparieren</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Beschädigtes wird gelesen, so weit es geht</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Bevorzugte Sprachen</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Bevorzugte Sprachen</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Filme beginnen mit Untertiteln in der ersten dieser Sprachen, die es gibt. Anfangs sind es die Sprachen Ihres Systems.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Sprache hinzufügen</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Fügt der Liste eine Sprache hinzu</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>&amp;Höher</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Rückt die Sprache in der Liste nach oben</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>T&amp;iefer</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Rückt die Sprache in der Liste nach unten</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Nimmt die Sprache aus der Liste</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Einblendungen</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;Kleinste Schriftgröße:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Kein Text über dem Film ist kleiner</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Abstan&amp;d vom Rand:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Wie weit das, was über dem Film gezeigt wird, vom Rand des Fensters entfernt bleibt</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>&amp;Rückmeldungen anzeigen</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Befehle sagen, was sie getan haben</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>An&amp;zeige für den nächsten Start merken</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Die zuletzt gewählte Anzeige wird wieder gezeigt</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Wie Texte über dem Film und das Fenster aussehen</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Stile der Einblendungen</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Wie Untertitel aussehen</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Stile der Untertitel</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>Er&amp;weitert</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Mauszeiger</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Ausblenden nach:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Wie lange der Mauszeiger ruht, bis er ausgeblendet wird</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Neue Versionen</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Die Pakete Ihres Systems halten Lumaro auf dem neuesten Stand.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Nach neuen &amp;Versionen suchen</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Beim Start von Lumaro, so oft wie unten eingestellt</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Auch nach &amp;Betaversionen</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versionen, die noch erprobt werden</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Häufigkeit:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Wie viel Zeit zwischen zwei Prüfungen vergeht</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Bei jedem Start</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Alle 30 Tage</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Letzte Prüfung:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Ergebnis:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;Jetzt prüfen</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Sucht sofort nach einer neuen Version</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnose</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Fernbedienung</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Auf &amp;Infrarot-Fernbedienungen hören</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Ihre Tasten gehören dem Player allein, solange er läuft</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Ereignisse pr&amp;otokollieren</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Zeilen für die Fehlersuche, im Systemprotokoll oder Terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Seite zurücksetzen</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Setzt die Einstellungen dieser Seite auf die anfänglichen zurück. Stile haben eine eigene Schaltfläche dafür.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Zurücksetzen rückgängig machen</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Holt die Einstellungen dieser Seite zurück (Strg+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Sucht eine Einstellung nach ihren Wörtern (Strg+F). Auf und Ab führen zu den anderen, die Eingabetaste zur Einstellung selbst.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d von %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Weitere Kodierungen</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d Sek.</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Suche: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Zum Suchen tippen</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Einstellungen ändern</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Rückmeldungen</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Bilder</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Anzeige</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Die Einstellungen können nicht gesichert werden.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Was Sie ändern, gilt, bis Lumaro beendet wird. Die Datei „%@“ kann nicht geschrieben werden.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Die Einstellungen sind beschädigt.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro beginnt mit neuen. Die beschädigte Datei bleibt als „%@“ erhalten.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Die Einstellungen können nicht gelesen werden.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Die Datei „%@“ bleibt, wie sie ist. Was Sie ändern, gilt, bis Lumaro beendet wird.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Die gemerkten Positionen in Filmen sind beschädigt; ihre Datei wurde beiseitegelegt.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Die gemerkten Positionen in Filmen können nicht gelesen werden.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Eine neuere Version von Lumaro merkt sich hier Positionen in Filmen; diese kann es nicht.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>Tastenk&amp;ürzel</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>Su&amp;chen:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Wörter eines Befehls oder seine Taste</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Die Befehle nach Menüs; fett sind solche mit eigenen Tasten</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>&amp;Tasten des Befehls:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Die Tasten des markierten Befehls</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Taste &amp;hinzufügen ...</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Danach die Taste drücken, auch mit Strg, Alt, Umschalt oder Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Taste entfer&amp;nen</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Die markierte Taste bedeutet nichts mehr</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Befehl zu&amp;rücksetzen</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Der Befehl bekommt die Tasten zurück, mit denen Lumaro ausgeliefert wird</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Alle &amp;zurücksetzen</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Jeder Befehl bekommt die Tasten zurück, mit denen Lumaro ausgeliefert wird</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Nimmt die letzte Änderung einer Taste zurück</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Die Taste bedeutet von nun an den markierten Befehl</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Die Taste behält ihre Bedeutung</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Drücken Sie eine Taste für „%@“. Esc bricht ab.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Diese Taste kennt Lumaro nicht.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc schließt Fenster und beendet Lumaro; das lässt sich nicht ändern.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ gehört der Arbeitsumgebung.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ bedeutet schon „%@“.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>„%@“ hat so viele Tasten wie möglich; entfernen Sie erst eine.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ bedeutet jetzt „%@“.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Nächste Wiederholung</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Vorherige Wiederholung</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Playlist zeigen</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Nächste Untertitel</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Vorherige Untertitel</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Keine Untertitel</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Im Menü einen Film öffnen</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>oder Dateien hierher ziehen.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Tasten des Befehls</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Seiten von Videoportalen mit &amp;yt-dlp öffnen</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Nach einer Adresse, die kein Film ist, wird das Programm yt-dlp gefragt, wo es installiert ist</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Filme öffnen</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Ordner öffnen …</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filme und Musik</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Zur Playlist hinzufügen</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Ordner mit Filmen öffnen</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Eine Adresse öffnen, mehrere Adressen öffnen</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>URL öffnen</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>URLs öffnen</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Adresse oder Pfad eines Films:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Adressen oder Pfade von Filmen, je Zeile einer:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adressen</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>Zur &amp;Playlist hinzufügen</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Was gerade läuft, läuft weiter; dasselbe bewirkt die gehaltene Alt-Taste</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Playlist ersetzen</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Zur Playlist hinzufügen</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Die Datei enthält Untertitel. Sie werden von selbst gezeigt, wenn sie neben ihrem Film liegen und ihr Name mit dessen Namen beginnt.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Das ist weder eine Adresse noch der Pfad einer Datei.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Fortgesetzt bei %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Tempo: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Halb so schnell</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Doppelt so schnell</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Ursprüngliches Tempo</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Langsamer und schneller in gleicher Tonhöhe; halb und doppelt so schnell</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>So schnell, wie der Film gemacht ist</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Keine Kapitel</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Kapitel %d von %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Kapitel %d von %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Nächstes Kapitel</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Vorheriges Kapitel</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Nächstes und vorheriges Kapitel</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Standbild sichern</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Das Bild als Datei sichern</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Standbild: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Kein Bild zu sichern</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Das Standbild lässt sich nicht sichern in %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Zur Zeit gehen</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Zur Zeit gehen …</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Zu einer Zeit gehen</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Zeit im Film:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Zeit im Film, bis %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Sekunden, Minuten oder Stunden: 90, 1:30 oder 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Zeit: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Abschnitt wiederholen</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Ab hier wiederholen</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Bis hierher wiederholen</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Einen Abschnitt wiederholen: sein Anfang, sein Ende, nicht mehr</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Wiederholen: Aus</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Wiederholen ab %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Wiederholen: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Nächstes Seitenverhältnis</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Seitenverhältnis: automatisch, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Seitenverhältnis: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Zeilensprung entfernen</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Zeilensprung entfernen: nächste Wahl</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Zeilensprung entfernen: automatisch, an, aus</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Zeilensprung entfernen: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Farben des Bildes</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Weniger Kontrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Mehr Kontrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Dunkler</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Heller</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Weniger Gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Mehr Gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Weniger Sättigung</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Mehr Sättigung</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Farbton zum Roten</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Farbton zum Grünen</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Kontrast, Helligkeit, Gamma, Sättigung, Farbton: weniger und mehr</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Die Farben, wie der Film sie hat</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Ursprüngliche Farben</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Kontrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Helligkeit: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Sättigung: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Farbton: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Schwarze Balken abschneiden</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Schwarze Balken abschneiden</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Abschneiden: An</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Abschneiden: Aus</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Keine schwarzen Balken</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Um 90° drehen</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Das Bild drehen und spiegeln</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Gedreht um %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Spiegeln: An</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Spiegeln: Aus</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Tonspuren</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Ton: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Nächste Tonspur</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Vorherige Tonspur</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Nächste und vorherige Tonspur</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d Kanäle</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Spur %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>nur Fremdsprachiges</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Zweite Untertitel</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Nächste zweite Untertitel</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Zweite Untertitel: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Zweite Untertitel oben im Bild: nächste Spur, keine</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Als zweite Untertitel können nur Texte gezeigt werden, und keine Spur zweimal</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Qualität: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Nächste Qualität</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Nächste Qualität eines Streams</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Nur eine Qualität</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Zur Livestelle gehen</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Zur Livestelle gehen</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Kein Livestream</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Hinter live</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Verbindung wird wiederhergestellt …</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Verbindung verloren</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Angaben zum Film</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Angaben zum Film zeigen oder verbergen</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Kein Film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Spuren</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Einzelbilder</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Puffer</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Decoder</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Hardware (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, angezeigt als %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ je Sekunde</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ je Sekunde, jetzt %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dynamikumfang</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (wird gespielt)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Gezeigte Untertitel</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Verspätet</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Füllt sich mit</translation>
    </message>
</context>
</TS>
