<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>‘%@’ kan niet worden geopend.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Het bestand ontbreekt, is beschadigd of is van een soort die Lumaro niet kent (fout %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>‘%@’ wordt mogelijk niet goed afgespeeld.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Delen van de film kunnen niet worden gedecodeerd (fout %d). Kies ‘Doorgaan’ om het toch te proberen.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Er is niets om af te spelen.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Geen van de opgegeven bestanden is een film die Lumaro kan afspelen. U kunt andere kiezen.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Het bestand bestaat niet.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Het bestand is leeg.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Het is een map of een apparaat, geen bestand.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>U hebt geen rechten om het bestand te lezen.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Het is geen film die Lumaro kan afspelen.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Er kwam niet op tijd een antwoord.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>De bibliotheken die films openen, ontbreken.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro kent dit soort adressen niet.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Er is geen server met die naam, of geen verbinding met het netwerk.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>De server is niet bereikbaar.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>De server heeft de verbinding geweigerd.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>De verbinding met de server is verbroken.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>De server verzendt bestanden alleen vanaf het begin, en wat als eerste nodig is, staat aan het einde van deze film. Download de film om hem af te spelen.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>De server vraagt om een naam en een wachtwoord (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>De server staat het niet toe (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>De server heeft dit bestand niet (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>De server heeft het verzoek afgewezen.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>De server antwoordde met een eigen fout.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>Er is geen film in deze map.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Het bestand is geen afspeellijst.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>De afspeellijst bevat geen films.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>De afspeellijst is groter dan 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>De afspeellijst is te lang. Alleen de eerste 100.000 items zijn geopend.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Te veel afspeellijsten verwijzen naar elkaar. Deze is weggelaten.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Items op Windows-schijven zijn weggelaten (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>De afspeellijst komt van een netwerk. Items die bestanden van deze computer noemen, zijn weggelaten (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Items die geen bestand en geen adres noemen, zijn weggelaten (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Mappen die niet mogen worden gelezen (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Niet alles kon worden doorzocht.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… en nog %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>‘%@’: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ bestanden kunnen niet worden geopend.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ films worden mogelijk niet goed afgespeeld.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Er is geen film die Lumaro kan afspelen in:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Bufferen: %d%%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Onderbroken: geen gegevens van de server</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Laden: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Hervat op %@
%@: vanaf het begin</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Films zoeken: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ bestand gevonden…</numerusform>
            <numerusform>%@ bestanden gevonden…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Openen…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Recent geopend</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Menu leegmaken en posities vergeten</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Zoeken naar nieuwe versies?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro kan af en toe kijken of er een nieuwere versie is. Er wordt niets over u of uw films verzonden. U kunt dit in de voorkeuren wijzigen.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Het zoeken naar een nieuwe versie is mislukt.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Geen van de sites was bereikbaar. Controleer de internetverbinding of probeer het later opnieuw.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro is bijgewerkt.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>U hebt de nieuwste versie.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Er is een nieuwere versie van Lumaro beschikbaar.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>Nu te downloaden: %@versie %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Nu downloaden…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Deze versie overslaan</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Bevalt Lumaro u?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro is gratis. Een donatie helpt het in leven te houden.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Doneren…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nieuwere %@versie %@ beschikbaar</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Geen enkele site bereikbaar</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>release</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>bèta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Bezig met controleren…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Afspelen</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pauze</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Begin</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Einde</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Vooruitspoelen ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Terugspoelen ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d s vooruit</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d s terug</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Beeld vooruit</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Beeld terug</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Volgende: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Vorige: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Volgend scherm</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Vorig scherm</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Slaapstand</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Computer herstarten</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Computer uitschakelen</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Afmelden</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Herstarten is mislukt: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Uitschakelen is mislukt: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Afmelden is mislukt: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Spatie</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>End</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Shift+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Media: afspelen</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Media: stop</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Media: volgende</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Media: vorige</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Media: harder</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Media: zachter</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Media: dempen</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>De slaapstand is mislukt: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Grootte: half</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Grootte: normaal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Grootte: dubbel</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Grootte: volledig</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Grootte: schermbreedte</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Grootte: schermhoogte</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Grootte: groter</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Grootte: kleiner</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Bedieningsbalk: aan</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Bedieningsbalk: uit</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volume: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Gedempt: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Gedempt</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Tijd: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Herhalen: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Eén</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Ondertitels: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Reparatie: aan</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Reparatie: uit</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d regel ervan is onleesbaar.</numerusform>
            <numerusform>%d regels ervan zijn onleesbaar.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d beeld ervan is onleesbaar.</numerusform>
            <numerusform>%d beelden ervan zijn onleesbaar.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>‘Repareren’ (menu Ondertitels) kan helpen.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Stijl</translation>
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
        <translation>Druk op %@ om een film te openen</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>of sleep bestanden hierheen. %@ toont alle toetsen.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Afspelen</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Afspeellijst</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Ondertitels</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Typ wat u zoekt. Elke opdracht staat ook in het menu: aan de bovenrand van het scherm of onder de rechtermuisknop.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Wat wilt u doen?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Geen opdracht bevat deze woorden.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Kijken en door de film bewegen</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Harder, zachter, stil</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Meelezen</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Het beeld groter zien, en wat er wordt afgespeeld</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Kiezen tussen de films</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Naar een ander scherm gaan</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Openen, instellen en afsluiten</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Hulp vinden</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>URL openen…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>URL’s openen…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Afspeellijst opslaan…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Afspeellijst opslaan</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Afspeellijst</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>De afspeellijst in een bestand opslaan</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>‘%@’ kan niet worden opgeslagen.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>U hebt geen rechten om daar te schrijven.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Er kan niet naar de schijf worden geschreven.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>De schijf is vol.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>De map bestaat niet.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Dit is een map.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Voorkeuren…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Over Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Zoeken naar nieuwe versie…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Halve grootte</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normale grootte</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Dubbele grootte</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Volledige grootte</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Schermvullend</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Volle breedte</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Volle hoogte</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Groter</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Bedieningsbalk tonen</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Balk over het beeld</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Balk over het beeld: uit, altijd, als de muisaanwijzer beweegt</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Balk over het beeld: uit</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Balk over het beeld: altijd</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Balk over het beeld: als de muisaanwijzer beweegt</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Sporen…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Geluid en ondertitels in één menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Bedieningsbalk verbergen</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Volgende weergave</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Vorige weergave</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Vooruitspoelen</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Terugspoelen</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Vooruitspringen</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Terugspringen</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Begin</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Einde</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Volgende film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Vorige film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Niet herhalen</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Niet herhalen</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Eén herhalen</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Alle herhalen</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Repareren</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Harder</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Zachter</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normaal volume</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Stil</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Volgend scherm</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Vorig scherm</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Meer…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>De hele lijst: films zoeken, verplaatsen en verwijderen</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Afspeellijst</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Omhoog</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Omlaag</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ van %@ films</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro-hulp</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Films openen</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Halve, normale en dubbele grootte</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Aan het scherm, zijn breedte, zijn hoogte aanpassen</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Groter en kleiner</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Bedieningsbalk</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Weergave in beeld: tijd, film, ondertitels, herhalen, volume</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Afspelen, pauze, terug naar normale snelheid</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Vooruit en terug: beeld voor beeld in de pauze, steeds sneller tijdens het afspelen</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Vooruit- en terugspringen</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Begin en einde van de film</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Volgende en vorige film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Dubbelklik</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Middelste knop</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Terugknop</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Vooruitknop</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Wiel omhoog</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Wiel omlaag</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Herhalen: uit, één, alle</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Harder en zachter</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Volgende en vorige ondertitels</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Geluid vroeger</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Geluid later</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Geluid als in het bestand</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Geluid vroeger en later</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Geluid op de tijden van het bestand</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Geluidsvertraging: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Ondertitels toevoegen…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Ondertitels toevoegen</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Een ondertitelbestand aan de film toevoegen</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>‘%@’ bevat geen leesbare ondertitels</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Aan de film toevoegen als ondertitels</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Vroeger tonen</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Later tonen</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Als in het bestand</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Ondertitels vroeger tonen</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Ondertitels later tonen</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Ondertitels op de tijden van hun bestand</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Ondertitels vroeger en later</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Ondertitels op de tijden van hun bestand</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Eerste regel wordt nu gesproken</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Laatste regel wordt nu gesproken</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Gelijk laten lopen met twee regels: druk op de ene terwijl de eerste regel wordt gesproken, op de andere bij de laatste</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Grotere tekst</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Kleinere tekst</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Grotere ondertitels</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Kleinere ondertitels</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Ondertitels groter en kleiner</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Hoger</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Lager</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Hogere ondertitels</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Lagere ondertitels</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Ondertitels hoger en lager</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Ondertitelvertraging: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Ondertitelgrootte: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Ondertitelhoogte: %d%</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>De regels kunnen niet gelijk lopen: ze zouden meer dan twee keer zo snel of zo langzaam zijn</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Beschadigde ondertitels repareren</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Volgend en vorig scherm</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>West-Europees (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>West-Europees (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>West-Europees (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>West-Europees (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>West-Europees (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>West-Europees (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latijn-VS (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Centraal-Europees (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Centraal-Europees (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Centraal-Europees (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Centraal-Europees (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>West-Europees (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Centraal-Europees (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Noords (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>IJslands (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Noords (DOS)</translation>
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
        <translation>Cyrillisch (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cyrillisch (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrillisch (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Oekraïens (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cyrillisch (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cyrillisch (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russisch (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Grieks (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Grieks (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Grieks (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Grieks (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Grieks (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turks (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turks (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turks (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turks (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebreeuws (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebreeuws (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebreeuws (DOS)</translation>
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
        <translation>Portugees (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Canadees-Frans (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thai (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thai (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamees (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japans (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japans (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japans (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japans (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japans (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japans (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chinees (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Vereenvoudigd Chinees (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Vereenvoudigd Chinees (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Vereenvoudigd Chinees (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Vereenvoudigd Chinees (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chinees (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Traditioneel Chinees (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Traditioneel Chinees (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Traditioneel Chinees (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Traditioneel Chinees (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Koreaans (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Koreaans (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Koreaans (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>&amp;Kleur:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>De kleur van de letters en van de lijn om het vlak</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>Lettert&amp;ype:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>De familie van de letters</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;Grootte:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>In punten van een scherm van 1080 punten hoog; op een hoger scherm groeien de letters mee</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Schaduw</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Schadu&amp;w tekenen</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Een schaduw houdt letters leesbaar op elk beeld</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Kle&amp;ur:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>De kleur van de schaduw, en hoeveel erdoorheen schijnt</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Vervag&amp;ing:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Hoever de rand van de schaduw uitloopt, in punten</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>&amp;Naar rechts:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Hoever de schaduw naar rechts valt, in punten; onder 0 naar links</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>O&amp;mhoog:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Hoever de schaduw omhoog valt, in punten; onder 0 omlaag</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>Verti&amp;caal:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>Op welke hoogte het staat</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>H&amp;orizontaal:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Aan welke kant van het scherm het staat</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Midden</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Midden</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>In het beeld</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Op de rand van het beeld</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Onder het beeld</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Vlak</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>De kleur rondom het beeld</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Vl&amp;ak tekenen</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Een vlak achter de tekst</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>K&amp;leur:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>De kleur van het vlak, en hoeveel erdoorheen schijnt</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>A&amp;fgeronde hoeken</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>De hoeken van het vlak zijn afgerond</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>&amp;Straal:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Hoever de hoeken zijn afgerond, in punten</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Kader &amp;tekenen</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Een lijn om het vlak, in de kleur van de tekst</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>B&amp;reedte:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Hoe breed de lijn is, in punten</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Vervagen en dekking</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Versc&amp;hijnen:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Hoelang het volledig verschijnen duurt; 0 toont het meteen</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>V&amp;erdwijnen:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Hoelang het volledig verdwijnen duurt; 0 verbergt het meteen</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Blijven:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Hoelang het blijft tussen verschijnen en verdwijnen</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Dekking &amp;verborgen:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Hoeveel ervan overblijft terwijl het verborgen is: 0% is niets</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Dekking zichtbaar:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Hoe dekkend het is terwijl het zichtbaar is: onder 100% schijnt het beeld erdoorheen</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Maakt deze stijl weer zoals hij aanvankelijk was</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Herstellen ongedaan maken</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Brengt de stijl terug zoals hij hiervoor was</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@%</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Voorbeeld</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Hoe het eruitziet over de film, of over een licht en een donker beeld</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Wat een avond!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volume: 80%</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Gestart zonder bestand</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>N&amp;iets openen</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro begint met een leeg scherm</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>De laatste afspeelli&amp;jst openen</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>De films van de vorige keer komen terug, op de plek waar ze zijn verlaten</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Vragen o&amp;m bestanden</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro begint met het venster dat films opent</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Beeld</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Groo&amp;tte:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Hoe groot films worden getoond, vanaf nu en bij de volgende start</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Aangepaste vergroting</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>V&amp;enster:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Of de film boven de vensters van andere programma’s blijft terwijl Lumaro actief is</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Balk over &amp;het beeld:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Waar er geen onder staat: een grotere balk die met de muisaanwijzer komt of blijft</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Altijd</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Als de muisaanwijzer beweegt</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Tussen andere vensters</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Boven andere vensters</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Bedieningsbal&amp;k tonen</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>De balk met afspelen, tijd en volume onder het beeld</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>S&amp;chermhelderheid instellen:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Zolang Lumaro draait; daarna is het scherm zo helder als voorheen</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Hoe helder het scherm is terwijl Lumaro draait</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Helderheid van het scherm</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Contrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Helderheid:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>Ga&amp;mma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>&amp;Verzadiging:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>&amp;Tint:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Elke film wordt zo getoond, die op het scherm meteen</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>De helderheid van dit scherm kan niet worden ingesteld</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Afspelen</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Sp&amp;rong van:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Hoeveel seconden een sprong vooruit- of teruggaat</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>seconden</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Volume onthouden voor &amp;de volgende start</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro begint zo luid als het eindigde</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Terwijl een ander programma actief is</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Film pa&amp;uzeren</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Hij gaat verder als u terugkomt</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Venster ver&amp;bergen</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Het venster wordt geminimaliseerd en komt met Lumaro terug</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Films hervatten &amp;waar ze zijn verlaten</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>De posities en ondertitels van de laatste duizend films worden onthouden, en het menu ‘Recent geopend’ somt ze op</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Afspeellijst</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Volgorde</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>&amp;Zoals toegevoegd</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Films worden afgespeeld in de volgorde waarin ze zijn opgegeven</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Wille&amp;keurig</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Films worden afgespeeld in een toevallige volgorde</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Gesor&amp;teerd</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Films worden afgespeeld op naam</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Getallen op &amp;waarde vergelijken</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Deel 2 komt vóór deel 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Op het &amp;volledige pad</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Mappen blijven bij elkaar</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Alleen op de &amp;bestandsnaam</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>In welke mappen de films ook staan</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>He&amp;rhalen:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Wat wordt herhaald, vanaf nu en in nieuwe afspeellijsten</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Afsp&amp;elen wat wordt geopend</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Anders worden films getoond en wachten ze</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>&amp;Doorgaan met de volgende film</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Als er een afloopt, wordt de volgende uit de lijst afgespeeld</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Afsluiten aan &amp;het einde van de lijst</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Tenzij die wordt herhaald</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>O&amp;ndertitels</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Weergave</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>On&amp;dertitels tonen</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Ook bij films die later worden geopend</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Opmaak &amp;toepassen</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Cursief, kleuren en plaatsen in ondertitelbestanden werken; anders worden ze weggelaten</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Ondertitelbestanden naast films &amp;zoeken</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Als een film wordt geopend</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>&amp;Codering:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Hoe de letters van ondertitelbestanden zijn opgeslagen; ‘Automatisch’ herkent het aan het bestand</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Codering van ondertitelbestanden</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>B&amp;eelden per seconde:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Voor ondertitelbestanden die beelden tellen in plaats van seconden</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Als de film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>&amp;Beschadigde ondertitelbestanden repareren</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Wat beschadigd is, wordt zo ver mogelijk gelezen</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Voorkeurstalen</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Voorkeurstalen</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Films beginnen met ondertitels in de eerste van deze talen die er is. Aanvankelijk zijn dit de talen van uw systeem.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Taal toevoegen</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Voegt een taal aan de lijst toe</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>&amp;Hoger</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Verplaatst de taal omhoog in de lijst</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Lage&amp;r</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Verplaatst de taal omlaag in de lijst</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Haalt de taal uit de lijst</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Overlays</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;Kleinste tekst:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Geen tekst over de film is kleiner</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Afstand &amp;tot de randen:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Hoever wat over de film wordt getoond van de randen van het venster blijft</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>&amp;Meldingen tonen</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Opdrachten zeggen wat ze hebben gedaan</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Weergave onthouden voor de volgende start</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>De laatst gekozen weergave in beeld wordt opnieuw getoond</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Hoe teksten over de film en het venster eruitzien</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Stijlen van overlays</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Hoe ondertitels eruitzien</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Stijlen van ondertitels</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Geavanceerd</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Muisaanwijzer</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Verbergen na:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Hoelang de muisaanwijzer stilstaat voordat hij wordt verborgen</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nieuwe versies</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>De pakketten van uw systeem houden Lumaro bijgewerkt.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;Zoeken naar nieuwe versies</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Als Lumaro start, zo vaak als hieronder is ingesteld</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Oo&amp;k naar bètaversies</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versies die nog worden beproefd</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Hoe vaak:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Hoeveel tijd er tussen twee controles verstrijkt</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Bij elke start</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Dagelijks</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Wekelijks</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Elke 30 dagen</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Laatste controle:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Resultaat:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Nu &amp;controleren</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Zoekt meteen naar een nieuwe versie</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnose</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Afstandsbediening</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>&amp;Reageren op infraroodafstandsbedieningen</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Hun knoppen zijn alleen voor de speler zolang die draait</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>&amp;Bijhouden wat er gebeurt</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Regels voor wie een fout zoekt, in het systeemlogboek of de terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Pagina herstellen</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Maakt de instellingen van deze pagina weer zoals ze aanvankelijk waren. Stijlen hebben een eigen knop.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Herstellen ongedaan maken</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Brengt de instellingen van deze pagina terug (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Een instelling zoeken</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Zoekt een instelling op woorden (Ctrl+F). Omhoog en Omlaag gaan naar de andere, Enter naar de instelling zelf.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d van %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Niets gevonden</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Meer coderingen</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d s</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Zoeken: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Typ om te zoeken</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>De voorkeuren wijzigen</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Meldingen</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Teksten</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Bitmaps</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Weergave in beeld</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>De voorkeuren kunnen niet worden opgeslagen.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Wat u wijzigt, geldt tot Lumaro wordt afgesloten. Het bestand ‘%@’ kan niet worden geschreven.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>De voorkeuren zijn beschadigd.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro begint met nieuwe. Het beschadigde bestand blijft bewaard als ‘%@’.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>De voorkeuren kunnen niet worden gelezen.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Het bestand ‘%@’ blijft zoals het is. Wat u wijzigt, geldt tot Lumaro wordt afgesloten.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>De onthouden posities in films zijn beschadigd; hun bestand is opzijgezet.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>De onthouden posities in films kunnen niet worden gelezen.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Een latere versie van Lumaro onthoudt hier posities in films; deze kan dat niet.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Sneltoetsen</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;Zoeken:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Woorden van een opdracht, of de toets ervan</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>De opdrachten per menu; vetgedrukte hebben toetsen die u hebt gekozen</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Opdrachten en hun toetsen</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Opdracht</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Toetsen</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Toetsen van &amp;de opdracht:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>De toetsen van de gemarkeerde opdracht</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>To&amp;ets toevoegen…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Druk daarna op de toets, desgewenst met Ctrl, Alt, Shift of Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>&amp;Toets verwijderen</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>De gemarkeerde toets betekent niets meer</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>De opdracht krijgt de toetsen terug waarmee Lumaro is geleverd</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Alles he&amp;rstellen</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Elke opdracht krijgt de toetsen terug waarmee Lumaro is geleverd</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Ongedaan &amp;maken</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Maakt de laatste wijziging van een toets ongedaan</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>O&amp;vernemen</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>De toets betekent voortaan de gemarkeerde opdracht</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>Ann&amp;uleren</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>De toets houdt zijn betekenis</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Druk op een toets voor ‘%@’. Esc annuleert.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro kent deze toets niet.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc sluit vensters en sluit Lumaro af; dat kan niet worden gewijzigd.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ hoort bij het bureaublad.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ betekent al ‘%@’.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>‘%@’ heeft zoveel toetsen als mogelijk is; verwijder er eerst een.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ betekent nu ‘%@’.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Volgende herhaling</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Vorige herhaling</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Afspeellijst tonen</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Volgende ondertitels</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Vorige ondertitels</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Geen ondertitels</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Open een film via het menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>of sleep bestanden hierheen.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Toetsen van de opdracht</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Pagina’s &amp;van videosites openen met yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Een adres dat geen film is, wordt aan het programma yt-dlp gevraagd, als dat is geïnstalleerd</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Films openen</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Map openen…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Films en muziek</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Toevoegen aan afspeellijst</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Mappen met films openen</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Een adres openen, meerdere adressen openen</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>URL openen</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>URL’s openen</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Adres of pad van een film:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Adressen of paden van films, één per regel:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adressen</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Toevoegen aan afspeellijst</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Wat nu wordt afgespeeld, gaat door; Alt ingedrukt houden doet hetzelfde</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>De afspeellijst vervangen</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Aan de afspeellijst toevoegen</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Het bevat ondertitels. Die worden vanzelf getoond als ze naast hun film staan en met de naam ervan beginnen.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Het is geen adres en ook geen pad van een bestand.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Hervat op %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Snelheid: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Langzamer</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Sneller</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Half zo snel</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Twee keer zo snel</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Oorspronkelijke snelheid</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Langzamer en sneller met dezelfde toonhoogte; half en twee keer zo snel</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Op de oorspronkelijke snelheid van de film</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Hoofdstukken</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Geen hoofdstukken</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Hoofdstuk %d van %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Hoofdstuk %d van %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Volgend hoofdstuk</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Vorig hoofdstuk</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Volgend en vorig hoofdstuk</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Schermafdruk opslaan</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Het beeld als bestand opslaan</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Schermafdruk: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Geen beeld om op te slaan</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Kan de schermafdruk niet opslaan in %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Naar tijdstip gaan</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Naar tijdstip gaan…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Naar een tijdstip gaan</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Tijdstip in de film:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Tijdstip in de film, tot %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Seconden, minuten of uren: 90, 1:30 of 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Tijd: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Fragment herhalen</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Herhalen vanaf hier</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Herhalen tot hier</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Een fragment herhalen: het begin, het einde, niet meer</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Fragment herhalen: uit</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Herhalen vanaf %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Fragment herhalen: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Beeldverhouding</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Volgende beeldverhouding</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Beeldverhouding: automatisch, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Beeldverhouding: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Deïnterlacing</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Volgende deïnterlacing</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Deïnterlacing: automatisch, aan, uit</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Deïnterlacing: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Beeldkleuren</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Minder contrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Meer contrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Donkerder</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Lichter</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Minder gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Meer gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Minder verzadiging</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Meer verzadiging</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Tint naar rood</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Tint naar groen</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contrast, helderheid, gamma, verzadiging, tint: minder en meer</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>De kleuren zoals de film ze heeft</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Oorspronkelijke kleuren</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Helderheid: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Verzadiging: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Tint: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Zwarte balken afsnijden</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Zwarte balken afsnijden</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Afsnijden: aan</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Afsnijden: uit</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Geen zwarte balken</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>90° draaien</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Het beeld draaien en spiegelen</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>%d° gedraaid</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Spiegelen</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Spiegelen: aan</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Spiegelen: uit</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Audiosporen</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Audio: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Volgend audiospoor</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Vorig audiospoor</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Volgend en vorig audiospoor</translation>
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
        <translation>%d kanalen</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Spoor %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>geforceerd</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Tweede ondertitels</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Volgende tweede ondertitels</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Tweede ondertitels: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Tweede ondertitels bovenaan: volgend spoor, geen</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Alleen teksten kunnen als tweede ondertitels worden getoond, en geen spoor twee keer</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Kwaliteit: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Volgende kwaliteit</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Volgende kwaliteit van een stream</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Maar één kwaliteit</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Naar live gaan</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Naar wat nu live is gaan</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Geen livestream</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Achter op live</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Opnieuw verbinden…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Verbinding verbroken</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>De informatie over de film tonen of verbergen</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Geen film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Sporen</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Beelden</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Buffer</translation>
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
        <translation>Grootte</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, getoond als %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Beeldsnelheid</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ per seconde</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ per seconde, nu %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dynamisch bereik</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanalen</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Samplefrequentie</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Uitvoer</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (wordt afgespeeld)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Getoonde ondertitels</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Getoond</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Te laat</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Weggelaten</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Wordt gevuld</translation>
    </message>
</context>
</TS>
