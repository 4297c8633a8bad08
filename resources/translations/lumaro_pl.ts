<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>Nie można otworzyć „%@”.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Pliku brakuje, jest uszkodzony lub jest typu, którego Lumaro nie zna (błąd %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>„%@” może nie odtwarzać się poprawnie.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Nie można zdekodować części filmu (błąd %d). Wybierz „Kontynuuj”, aby mimo to spróbować.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Nie ma nic do odtworzenia.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Żaden z podanych plików nie jest filmem, który Lumaro może odtworzyć. Możesz wybrać inne.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>To folder lub urządzenie, a nie plik.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Brak uprawnień do odczytu pliku.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>To nie jest film, który Lumaro może odtworzyć.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Odpowiedź nie nadeszła na czas.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Brakuje bibliotek, które otwierają filmy.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro nie zna adresów tego rodzaju.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Nie ma serwera o tej nazwie lub brak połączenia z siecią.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Serwer jest nieosiągalny.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Serwer odmówił połączenia.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Połączenie z serwerem zostało przerwane.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Serwer wysyła pliki tylko od początku, a to, co potrzebne najpierw, znajduje się na końcu tego filmu. Pobierz go, aby go odtworzyć.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Serwer wymaga nazwy i hasła (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Serwer na to nie pozwala (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Na serwerze nie ma takiego pliku (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Serwer odrzucił żądanie.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Serwer odpowiedział własnym błędem.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>W tym folderze nie ma żadnego filmu.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Plik nie jest listą odtwarzania.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>Lista odtwarzania nie zawiera filmów.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Lista odtwarzania jest większa niż 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Lista odtwarzania jest za długa. Otwarto tylko pierwsze 100 000 pozycji.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Zbyt wiele list odtwarzania odwołuje się do siebie nawzajem. Ta została pominięta.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Pominięto pozycje na dyskach Windows (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Lista odtwarzania pochodzi z sieci. Pominięto pozycje, które wskazują pliki na tym komputerze (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Pominięto pozycje, które nie wskazują ani pliku, ani adresu (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Foldery, których nie wolno odczytać (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Nie wszystko dało się przeszukać.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… i jeszcze %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>„%@”: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>Nie można otworzyć plików: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>Filmy, które mogą nie odtwarzać się poprawnie: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Brak filmów, które Lumaro może odtworzyć, w:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Buforowanie: %d%%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Wstrzymano: brak danych z serwera</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Wczytywanie: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Wznowiono od %@
%@: od początku</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Szukanie filmów: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>Znaleziono %@ plik…</numerusform>
            <numerusform>Znaleziono %@ pliki…</numerusform>
            <numerusform>Znaleziono %@ plików…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Otwórz…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Ostatnio otwarte</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Wyczyść menu i zapomnij miejsca</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Szukać nowych wersji?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro może od czasu do czasu sprawdzać, czy istnieje nowsza wersja. Żadne informacje o Tobie ani o Twoich filmach nie są wysyłane. Możesz to zmienić w preferencjach.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Wyszukiwanie nowej wersji nie powiodło się.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Żadna z witryn nie była osiągalna. Sprawdź połączenie z internetem lub spróbuj ponownie później.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro jest aktualne.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Masz najnowszą wersję.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Dostępna jest nowsza wersja Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>Można teraz pobrać wersję (%@): %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>Pobierz &amp;teraz…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Pomiń tę wersję</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Podoba Ci się Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro jest bezpłatne. Datek pomaga utrzymać je przy życiu.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Przekaż datek…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Dostępna nowsza wersja (%@): %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Żadna witryna nie jest osiągalna</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>stabilna</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Nieznane</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nigdy</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Wstrzymanie</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Zatrzymanie</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Początek</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Koniec</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Przewijanie do przodu ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Przewijanie do tyłu ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d s do przodu</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d s do tyłu</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Klatka do przodu</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Klatka do tyłu</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Następny: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Poprzedni: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Następny ekran</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Poprzedni ekran</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Uśpij</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Uruchom komputer ponownie</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Wyłącz komputer</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Wyloguj</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Ponowne uruchomienie nie powiodło się: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Wyłączenie nie powiodło się: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Wylogowanie nie powiodło się: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>PgUp</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>PgDn</translation>
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
        <translation>Multimedia: odtwarzaj</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Multimedia: zatrzymaj</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Multimedia: następny</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Multimedia: poprzedni</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Multimedia: głośniej</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Multimedia: ciszej</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Multimedia: wycisz</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Uśpienie nie powiodło się: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Rozmiar: połowa</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Rozmiar: normalny</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Rozmiar: podwójny</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Rozmiar: pełny</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Rozmiar: szerokość ekranu</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Rozmiar: wysokość ekranu</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Rozmiar: większy</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Rozmiar: mniejszy</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Pasek sterowania: wł.</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Pasek sterowania: wył.</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Głośność: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Wyciszenie: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Wyciszono</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Czas: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Powtarzanie: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Jeden</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Napisy: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Naprawianie: wł.</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Naprawianie: wył.</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>Nie można w nim odczytać %d wiersza.</numerusform>
            <numerusform>Nie można w nim odczytać %d wierszy.</numerusform>
            <numerusform>Nie można w nim odczytać %d wierszy.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>Nie można w nim odczytać %d obrazu.</numerusform>
            <numerusform>Nie można w nim odczytać %d obrazów.</numerusform>
            <numerusform>Nie można w nim odczytać %d obrazów.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>Może pomóc „Napraw” (menu Napisy).</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatycznie</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Naciśnij %@, aby otworzyć film</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>lub upuść pliki tutaj. %@ pokazuje wszystkie klawisze.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Napisy</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Wpisz, czego szukasz. Każde polecenie jest też w menu: przy górnej krawędzi ekranu lub pod prawym przyciskiem myszy.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Co chcesz zrobić?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Żadne polecenie nie zawiera tych słów.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Oglądanie i poruszanie się po filmie</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Głośniej, ciszej, bez dźwięku</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Czytanie napisów</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Większy obraz i to, co jest odtwarzane</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Wybieranie filmów</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Przejście na inny ekran</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Otwieranie, ustawianie i kończenie</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Szukanie pomocy</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Otwórz URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Otwórz wiele URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Zapisz listę odtwarzania…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Zapisz listę odtwarzania</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Zapisz listę odtwarzania do pliku</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>Nie można zapisać „%@”.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Brak uprawnień do zapisu w tym miejscu.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Nie można zapisywać na tym dysku.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>To jest folder.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Preferencje…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>O programie Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Sprawdź nową wersję…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Połowa rozmiaru</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normalny rozmiar</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Podwójny rozmiar</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Pełny rozmiar</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Dopasuj do ekranu</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Dopasuj do szerokości</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Dopasuj do wysokości</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Większy</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Mniejszy</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Pokaż pasek sterowania</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Pasek na obrazie</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Pasek na obrazie: wył., zawsze, gdy wskaźnik się rusza</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Pasek na obrazie: wył.</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Pasek na obrazie: zawsze</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Pasek na obrazie: gdy wskaźnik się rusza</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Ścieżki…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Dźwięk i napisy w jednym menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Ukryj pasek sterowania</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Następny wskaźnik ekranowy</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Poprzedni wskaźnik ekranowy</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Odtwarzaj</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Przewiń do przodu</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Przewiń do tyłu</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Skok do przodu</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Skok do tyłu</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Początek</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Koniec</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Następny film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Poprzedni film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Bez powtarzania</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Bez powtarzania</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Powtarzaj jeden</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Powtarzaj wszystkie</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Głośniej</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Ciszej</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normalna głośność</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Bez dźwięku</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Następny ekran</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Poprzedni ekran</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Więcej…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Cała lista: wyszukiwanie, przesuwanie i usuwanie filmów</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtruj</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>Filmy: %@ z %@</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Pomoc Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Otwieranie filmów</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Połowa rozmiaru, normalny i podwójny rozmiar</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Dopasowanie do ekranu, jego szerokości, jego wysokości</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Większy i mniejszy</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Pasek sterowania</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Wskaźnik ekranowy: czas, film, napisy, powtarzanie, głośność</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Odtwarzanie, wstrzymanie, powrót do normalnej prędkości</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Do przodu i do tyłu: po klatce po wstrzymaniu, coraz szybciej podczas odtwarzania</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Skok do przodu i do tyłu</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Początek i koniec filmu</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Następny i poprzedni film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Dwukrotne kliknięcie</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Środkowy przycisk</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Przycisk Wstecz</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Przycisk Dalej</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Kółko w górę</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Kółko w dół</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Powtarzanie: wył., jeden, wszystkie</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Głośniej i ciszej</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Następne i poprzednie napisy</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Dźwięk wcześniej</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Dźwięk później</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Dźwięk jak w pliku</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Dźwięk wcześniej i później</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Dźwięk w czasach z pliku</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Opóźnienie dźwięku: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Dodaj napisy…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Dodaj napisy</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Dodaj do filmu plik z napisami</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>„%@” nie zawiera czytelnych napisów</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Dodaj do filmu jako napisy</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Pokazuj wcześniej</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Pokazuj później</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Jak w pliku</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Pokazuj napisy wcześniej</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Pokazuj napisy później</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Napisy w czasach z ich pliku</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Napisy wcześniej i później</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Napisy w czasach z ich pliku</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Teraz pada pierwsza kwestia</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Teraz pada ostatnia kwestia</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Synchronizacja dwiema kwestiami: jeden klawisz, gdy pada pierwsza, drugi, gdy pada ostatnia</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Większy tekst</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Mniejszy tekst</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Większe napisy</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Mniejsze napisy</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Napisy większe i mniejsze</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Wyżej</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Niżej</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Napisy wyżej</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Napisy niżej</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Napisy wyżej i niżej</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Opóźnienie napisów: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Rozmiar napisów: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Wysokość napisów: %d%</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Nie można zsynchronizować kwestii: byłyby ponad dwa razy szybsze lub wolniejsze</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Naprawianie uszkodzonych napisów</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Następny i poprzedni ekran</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Zachodnie (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Zachodnie (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Zachodnie (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Zachodnie (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Zachodnie (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Zachodnie (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Łacińskie-USA (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Środkowoeuropejskie (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Środkowoeuropejskie (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Środkowoeuropejskie (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Środkowoeuropejskie (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Zachodnie (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Środkowoeuropejskie (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordyckie (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandzkie (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordyckie (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Bałtyckie (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Bałtyckie (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Bałtyckie (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celtyckie (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cyrylica (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cyrylica (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrylica (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukraińskie (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cyrylica (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cyrylica (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Rosyjskie (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Greckie (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Greckie (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Greckie (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Greckie (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Greckie (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Tureckie (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Tureckie (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Tureckie (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Tureckie (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebrajskie (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebrajskie (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebrajskie (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabskie (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabskie (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabskie (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugalskie (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Francuskie kanadyjskie (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Tajskie (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Tajskie (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Wietnamskie (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japońskie (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japońskie (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japońskie (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japońskie (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japońskie (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japońskie (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chińskie (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Chińskie uproszczone (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Chińskie uproszczone (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chińskie uproszczone (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Chińskie uproszczone (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chińskie (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Chińskie tradycyjne (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Chińskie tradycyjne (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Chińskie tradycyjne (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Chińskie tradycyjne (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Koreańskie (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Koreańskie (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Koreańskie (ISO 2022-KR)</translation>
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
        <translation>Kolo&amp;r tekstu:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Kolor liter i linii wokół panelu</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>Czcio&amp;nka:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Rodzina liter</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Rozm&amp;iar:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>W punktach ekranu o wysokości 1080 punktów; na wyższym litery rosną wraz z nim</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Cień</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Ry&amp;suj cień</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Cień utrzymuje czytelność liter na każdym obrazie</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Kolor &amp;cienia:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Kolor cienia i to, ile przez niego widać</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Rozm&amp;ycie:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Jak szeroko rozmyta jest krawędź cienia, w punktach</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>&amp;W prawo:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Jak daleko cień pada w prawo, w punktach; poniżej 0 w lewo</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>W &amp;górę:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Jak daleko cień pada w górę, w punktach; poniżej 0 w dół</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Położenie</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>W pi&amp;onie:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>Na jakiej wysokości się znajduje</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>W pozio&amp;mie:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Po której stronie ekranu się znajduje</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Po lewej</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Na środku</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Po prawej</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>U góry</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Pośrodku</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>U dołu</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Wewnątrz obrazu</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Na krawędzi obrazu</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Pod obrazem</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Kolor wokół obrazu</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Rysuj pane&amp;l</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Panel za tekstem</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Kolor &amp;panelu:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Kolor panelu i to, ile przez niego widać</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>&amp;Zaokrąglone rogi</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Rogi panelu są zaokrąglone</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Promi&amp;eń:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Jak bardzo rogi są zaokrąglone, w punktach</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Rys&amp;uj obramowanie</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Linia wokół panelu, w kolorze tekstu</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Gru&amp;bość linii:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Jak szeroka jest linia, w punktach</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Przenikanie i krycie</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Po&amp;jawianie:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Ile trwa pełne przenikanie przy pojawianiu się; 0 pokazuje od razu</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>Znik&amp;anie:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Ile trwa pełne przenikanie przy znikaniu; 0 ukrywa od razu</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>Czas &amp;trwania:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Jak długo pozostaje między pojawieniem się a zniknięciem</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>&amp;Krycie ukrytego:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Ile z niego zostaje, gdy jest ukryty: 0% to nic</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>Krycie wi&amp;docznego:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Jak bardzo kryje, gdy jest widoczny: poniżej 100% prześwituje obraz</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Przywraca temu stylowi początkowy wygląd</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Cofnij przywrócenie</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Przywraca styl sprzed zmiany</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@%</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Przykład</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Jak to wygląda na filmie albo na jasnym i ciemnym obrazie</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Cóż za wieczór!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Głośność: 80%</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Uruchomienie bez pliku</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Nie otwie&amp;raj niczego</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro zaczyna z pustym ekranem</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>O&amp;twórz ostatnią listę odtwarzania</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Wracają ostatnio oglądane filmy, w miejscu, w którym je przerwano</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Zapytaj o pl&amp;iki</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro zaczyna od okna otwierania filmów</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Roz&amp;miar:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Jak duże są pokazywane filmy, od teraz i przy następnym uruchomieniu</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Własne powiększenie</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>O&amp;kno:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Czy film pozostaje nad oknami innych programów, gdy aktywne jest Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Pasek na &amp;obrazie:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Tam, gdzie nie ma go pod obrazem: większy pasek, który pojawia się ze wskaźnikiem lub pozostaje</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Zawsze</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Gdy wskaźnik się rusza</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Wśród innych okien</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Nad innymi oknami</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Pokazuj pas&amp;ek sterowania</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Pasek z odtwarzaniem, czasem i głośnością pod obrazem</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Ustaw &amp;jasność ekranu:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Dopóki działa Lumaro; potem ekran jest tak jasny jak przedtem</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Jak jasny jest ekran, gdy działa Lumaro</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Jasność ekranu</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>O&amp;braz</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Jasność:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Nas&amp;ycenie:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>&amp;Odcień:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Tak jest pokazywany każdy film, a ten na ekranie od razu</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Jasności tego ekranu nie można ustawić</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Dł&amp;ugość skoku:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>O ile sekund skok przenosi do przodu lub do tyłu</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>s</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Zapamiętaj głośność &amp;do następnego uruchomienia</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro zaczyna tak głośno, jak skończyło</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Gdy aktywny jest inny program</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>&amp;Wstrzymaj film</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Film jest wznawiany po powrocie</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Ukr&amp;yj okno</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Okno jest minimalizowane i wraca razem z Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Wznawiaj filmy tam, &amp;gdzie je przerwano</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Miejsca i napisy ostatniego tysiąca filmów są pamiętane, a menu „Ostatnio otwarte” je wymienia</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Lista odtwarzania</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Kolejność</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>&amp;Jak dodano</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Filmy są odtwarzane w kolejności, w jakiej je podano</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Loso&amp;wa</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Filmy są odtwarzane w przypadkowej kolejności</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Poso&amp;rtowana</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Filmy są odtwarzane według nazw</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Porówn&amp;uj liczby według wartości</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Część 2 przed częścią 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>We&amp;dług pełnej ścieżki</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Foldery pozostają razem</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>T&amp;ylko według nazwy pliku</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Bez względu na foldery, w których są filmy</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Powtarzani&amp;e:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Co jest powtarzane, od teraz i w nowych listach odtwarzania</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Odtwarzaj &amp;to, co jest otwierane</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>W przeciwnym razie filmy są pokazywane i czekają</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Prze&amp;chodź do następnego filmu</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Gdy jeden się kończy, odtwarzany jest następny z listy</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Zakończ po &amp;ostatnim filmie listy</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>O ile lista nie jest powtarzana</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>N&amp;apisy</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>P&amp;okazuj napisy</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Także w filmach otwartych później</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>S&amp;tosuj formatowanie</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Kursywa, kolory i położenia z plików napisów działają; w przeciwnym razie są pomijane</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Szukaj plikó&amp;w napisów obok filmów</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Przy otwieraniu filmu</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Ko&amp;dowanie:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Jak zapisane są litery w plikach napisów; „Automatycznie” rozpoznaje to po pliku</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Kodowanie plików napisów</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Klatki na sekundę:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Dla plików napisów, które liczą klatki zamiast sekund</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Jak film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Nap&amp;rawiaj uszkodzone pliki napisów</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>To, co uszkodzone, jest odczytywane, na ile się da</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Preferowane języki</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Preferowane języki</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Filmy zaczynają się z napisami w pierwszym z tych języków, który jest dostępny. Na początku są to języki systemu.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Dodaj język</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Dodaje język do listy</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>W&amp;yżej</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Przesuwa język w górę listy</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Niż&amp;ej</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Przesuwa język w dół listy</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Usuwa język z listy</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Nakładki</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Najmniejszy &amp;tekst:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Żaden tekst na filmie nie jest mniejszy</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>&amp;Odległość od krawędzi:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Jak daleko od krawędzi okna trzyma się to, co jest pokazywane na filmie</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Pokazuj &amp;komunikaty</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Polecenia mówią, co zrobiły</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>Zapamiętaj &amp;wskaźnik ekranowy do następnego uruchomienia</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Ostatnio wybrany wskaźnik ekranowy jest pokazywany ponownie</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Jak wyglądają teksty na filmie i okno</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Style nakładek</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Jak wyglądają napisy</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Style napisów</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Zaawansowane</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Wskaźnik myszy</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>U&amp;kryj po:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Jak długo wskaźnik spoczywa, zanim zostanie ukryty</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nowe wersje</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Pakiety systemu dbają o aktualność Lumaro.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Sz&amp;ukaj nowych wersji</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Przy uruchomieniu Lumaro, tak często jak ustawiono poniżej</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>&amp;Także wersji beta</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Wersji, które są jeszcze wypróbowywane</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Jak często:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Ile czasu mija między dwoma sprawdzeniami</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Przy każdym uruchomieniu</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Codziennie</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Co tydzień</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Co 30 dni</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Ostatnie sprawdzenie:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Wynik:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Sp&amp;rawdź teraz</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Od razu szuka nowej wersji</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnostyka</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Pilot</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>R&amp;eaguj na piloty na podczerwień</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Ich przyciski należą tylko do odtwarzacza, dopóki działa</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Zapisuj zdarzenia &amp;w dzienniku</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Wiersze dla szukających błędu, w dzienniku systemowym lub terminalu</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Przywróć stronę</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Przywraca ustawieniom tej strony początkowe wartości. Style mają własny przycisk.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Cofnij przywrócenie</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Przywraca ustawienia tej strony (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Znajdź ustawienie</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Znajduje ustawienie po jego słowach (Ctrl+F). Strzałki w górę i w dół prowadzą do pozostałych, Enter do samego ustawienia.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d z %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Więcej kodowań</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d s</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Szukaj: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Pisz, aby szukać</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Zmiana preferencji</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Komunikaty</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Teksty</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Obrazy</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Wskaźnik ekranowy</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Nie można zapisać preferencji.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>To, co zmienisz, działa do zamknięcia Lumaro. Nie można zapisać pliku „%@”.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Preferencje są uszkodzone.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro zaczyna z nowymi. Uszkodzony plik zachowano jako „%@”.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Nie można odczytać preferencji.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Plik „%@” pozostaje bez zmian. To, co zmienisz, działa do zamknięcia Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Zapamiętane miejsca w filmach są uszkodzone; ich plik odłożono na bok.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Nie można odczytać zapamiętanych miejsc w filmach.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Nowsza wersja Lumaro pamięta tu miejsca w filmach; ta nie może.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Skróty</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>Szu&amp;kaj:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Słowa z polecenia lub jego klawisz</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Polecenia według menu; pogrubione mają klawisze użytkownika</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Polecenia i ich klawisze</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Kla&amp;wisze polecenia:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Klawisze zaznaczonego polecenia</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>&amp;Dodaj klawisz…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Potem naciśnij klawisz, w razie potrzeby z Ctrl, Alt, Shift lub Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Usuń klaw&amp;isz</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Zaznaczony klawisz nic już nie znaczy</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Prz&amp;ywróć</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Polecenie odzyskuje klawisze, z którymi dostarczono Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>P&amp;rzywróć wszystkie</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Wszystkie polecenia odzyskują klawisze, z którymi dostarczono Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Cofa ostatnią zmianę klawisza</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Prz&amp;ejmij</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Klawisz oznacza odtąd zaznaczone polecenie</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>An&amp;uluj</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Klawisz zachowuje znaczenie</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Naciśnij klawisz dla „%@”. Esc anuluje.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro nie zna tego klawisza.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc zamyka okna i kończy Lumaro; tego nie można zmienić.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ należy do środowiska graficznego.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ oznacza już „%@”.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>„%@” ma tyle klawiszy, ile może mieć; najpierw usuń jeden.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ oznacza teraz „%@”.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Następne powtarzanie</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Poprzednie powtarzanie</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Pokaż listę odtwarzania</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Następne napisy</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Poprzednie napisy</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Bez napisów</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Otwórz film z menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>lub upuść pliki tutaj.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Klawisze polecenia</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Otwieraj strony serwis&amp;ów wideo przez yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>O adres, który nie jest filmem, pytany jest program yt-dlp, jeśli jest zainstalowany</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Otwórz filmy</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Otwórz folder…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filmy i muzyka</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Dodaj do listy odtwarzania</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Otwieranie folderów z filmami</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Otwieranie adresu, wielu adresów</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Otwórz URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Otwórz wiele URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Adres lub ścieżka filmu:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Adresy lub ścieżki filmów, po jednym w wierszu:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adresy</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Dodaj do listy odtwarzania</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>To, co jest odtwarzane, trwa dalej; przytrzymanie Alt robi to samo</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Zastąp listę odtwarzania</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Dodaj do listy odtwarzania</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Zawiera napisy. Są pokazywane same, gdy leżą obok filmu i zaczynają się od jego nazwy.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>To nie jest ani adres, ani ścieżka pliku.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Wznowiono od %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Prędkość: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Wolniej</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Szybciej</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Dwa razy wolniej</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Dwa razy szybciej</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Oryginalna prędkość</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Wolniej i szybciej z zachowaniem wysokości dźwięku; dwa razy wolniej i szybciej</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Z oryginalną prędkością filmu</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Rozdziały</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Brak rozdziałów</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Rozdział %d z %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Rozdział %d z %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Następny rozdział</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Poprzedni rozdział</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Następny i poprzedni rozdział</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Zapisz kadr</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Zapisz obraz jako plik</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Kadr: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Brak obrazu do zapisania</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Nie można zapisać kadru w %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Przejdź do czasu</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Przejdź do czasu…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Przejście do podanego czasu</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Czas w filmie:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Czas w filmie, do %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Sekundy, minuty lub godziny: 90, 1:30 lub 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Czas: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Powtarzaj fragment</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Powtarzaj odtąd</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Powtarzaj dotąd</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Powtarzanie fragmentu: jego początek, jego koniec, już nie</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Powtarzanie fragmentu: wył.</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Powtarzanie od %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Powtarzanie fragmentu: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Proporcje</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Następne proporcje</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Proporcje: automatycznie, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Proporcje: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Usuwanie przeplotu</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Następne usuwanie przeplotu</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Usuwanie przeplotu: automatycznie, wł., wył.</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Usuwanie przeplotu: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Kolory obrazu</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Mniejszy kontrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Większy kontrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Ciemniej</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Jaśniej</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Mniejsza gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Większa gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Mniejsze nasycenie</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Większe nasycenie</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Odcień ku czerwieni</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Odcień ku zieleni</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Kontrast, jasność, gamma, nasycenie, odcień: mniej i więcej</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Kolory takie, jakie ma film</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Oryginalne kolory</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Kontrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Jasność: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Nasycenie: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Odcień: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Przytnij czarne pasy</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Przycinanie czarnych pasów</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Przycinanie: wł.</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Przycinanie: wył.</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Brak czarnych pasów</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Obróć o 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Obracanie i odbijanie obrazu</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Obrócono o %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Odbicie lustrzane</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Odbicie lustrzane: wł.</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Odbicie lustrzane: wył.</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Ścieżki dźwiękowe</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Dźwięk: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Następna ścieżka dźwiękowa</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Poprzednia ścieżka dźwiękowa</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Następna i poprzednia ścieżka dźwiękowa</translation>
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
        <translation>kanały: %d</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Ścieżka %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>wymuszone</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Drugie napisy</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Następne drugie napisy</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Drugie napisy: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Drugie napisy u góry: następna ścieżka, brak</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Jako drugie napisy można pokazywać tylko teksty, a żadnej ścieżki dwa razy</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Jakość: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Następna jakość</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Następna jakość strumienia</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Tylko jedna jakość</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Przejdź na żywo</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Przejdź do tego, co jest na żywo</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>To nie jest transmisja na żywo</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Na żywo</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Opóźnienie względem transmisji</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Ponowne łączenie…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Utracono połączenie</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Pokazywanie lub ukrywanie informacji o filmie</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Brak filmu</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Kontener</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Rozmiar pliku</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Przepływność</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Ścieżki</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Klatki</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Bufor</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Kodek</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Dekoder</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Programowy</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Sprzętowy (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, wyświetlany jako %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Liczba klatek</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ na sekundę</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ na sekundę, teraz %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Zakres dynamiczny</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standardowy</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanały</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Częstotliwość próbkowania</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Wyjście</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (odtwarzane)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Pokazywane napisy</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Pokazane</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Spóźnione</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Pominięte</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Gotowy</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Napełnianie</translation>
    </message>
</context>
</TS>
