<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>Не удаётся открыть «%@».</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Файл отсутствует, повреждён или его тип неизвестен Lumaro (ошибка %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>«%@» может воспроизводиться неправильно.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Некоторые части фильма не удаётся декодировать (ошибка %d). Нажмите «Продолжить», чтобы всё равно попробовать.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Воспроизводить нечего.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Среди указанных файлов нет фильмов, которые Lumaro может воспроизвести. Можно выбрать другие.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Это папка или устройство, а не файл.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>У вас нет прав на чтение этого файла.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Это не фильм, который Lumaro может воспроизвести.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Время ожидания ответа истекло.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Отсутствуют библиотеки, необходимые для открытия фильмов.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro не поддерживает адреса такого вида.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Сервера с таким именем нет, или нет подключения к сети.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Сервер недоступен.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Сервер отклонил подключение.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Соединение с сервером прервано.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Сервер передаёт файлы только с начала, а нужные в первую очередь данные находятся в конце этого фильма. Чтобы воспроизвести фильм, загрузите его.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Сервер запрашивает имя и пароль (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Сервер не разрешает доступ (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>На сервере нет такого файла (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Сервер отклонил запрос.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>На сервере произошла ошибка.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>В этой папке нет фильмов.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Файл не является плейлистом.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>В плейлисте нет фильмов.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Размер плейлиста превышает 32 МБ.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Плейлист слишком длинный. Открыты только первые 100 000 элементов.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Слишком много плейлистов ссылаются друг на друга. Этот пропущен.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Пропущены элементы на дисках Windows (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Плейлист получен из сети. Пропущены элементы, указывающие на файлы этого компьютера (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Пропущены элементы, не указывающие ни на файл, ни на адрес (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Папки, недоступные для чтения (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Не всё удалось просмотреть.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… и ещё %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>«%@»: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>Не удаётся открыть файлы: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>Могут воспроизводиться неправильно фильмы: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Нет фильмов, которые Lumaro может воспроизвести, в:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Буферизация: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Остановлено: нет данных от сервера</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Загрузка: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Продолжено с %@
%@: сначала</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Поиск фильмов: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>Найден %@ файл…</numerusform>
            <numerusform>Найдено %@ файла…</numerusform>
            <numerusform>Найдено %@ файлов…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Открыть…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Недавние фильмы</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Очистить меню и забыть позиции</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Проверять наличие новых версий?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Время от времени Lumaro может проверять, не вышла ли новая версия. Никакие сведения о вас или ваших фильмах не отправляются. Это можно изменить в настройках.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Не удалось проверить наличие новой версии.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Ни один из сайтов не отвечает. Проверьте подключение к интернету или повторите попытку позже.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Обновлений Lumaro нет.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>У вас последняя версия.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Доступна новая версия Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>Доступна для загрузки %@ версия %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Загрузить сейчас…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Пропустить версию</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Вам нравится Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro распространяется бесплатно. Пожертвования помогают его развивать.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Пожертвовать…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Установлена последняя версия</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Доступна новая %@ версия %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Ни один из сайтов не отвечает</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>стабильная</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>тестовая</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Проверка…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Никогда</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Пауза</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>В начало</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>В конец</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Перемотка вперёд ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Перемотка назад ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>На %d с вперёд</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>На %d с назад</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Следующий кадр</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Предыдущий кадр</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Следующий: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Предыдущий: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Следующий экран</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Предыдущий экран</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Спящий режим</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Перезагрузить компьютер</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Выключить компьютер</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Завершить сеанс</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Не удалось перезагрузить: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Не удалось выключить: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Не удалось завершить сеанс: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Пробел</translation>
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
        <translation>Медиа: воспроизведение</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Медиа: стоп</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Медиа: следующий</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Медиа: предыдущий</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Медиа: громче</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Медиа: тише</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Медиа: без звука</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Не удалось перейти в спящий режим: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Размер: половинный</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Размер: обычный</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Размер: двойной</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Размер: на весь экран</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Размер: по ширине</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Размер: по высоте</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Размер: увеличен</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Размер: уменьшен</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Панель управления: вкл.</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Панель управления: выкл.</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Громкость: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Без звука: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Без звука</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Время: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Фильм: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Повтор: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>один</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>все</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Субтитры: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Исправление: вкл.</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Исправление: выкл.</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>В нём не читается %d строка.</numerusform>
            <numerusform>В нём не читаются %d строки.</numerusform>
            <numerusform>В нём не читаются %d строк.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>В нём не читается %d изображение.</numerusform>
            <numerusform>В нём не читаются %d изображения.</numerusform>
            <numerusform>В нём не читаются %d изображений.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>Может помочь «Исправить» (меню «Субтитры»).</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Стиль</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Нажмите %@, чтобы открыть фильм,</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>или перетащите файлы сюда. %@ — список всех клавиш.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Фильм</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Плейлист</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Субтитры</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Введите, что вы ищете. Все команды есть и в меню: у верхнего края экрана или по правой кнопке мыши.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Что вы хотите сделать?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Команд с такими словами нет.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Просмотр и перемещение по фильму</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Громче, тише, без звука</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Субтитры при просмотре</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Размер изображения и сведения о фильме</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Выбор фильма</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Переход на другой экран</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Открытие, настройка и выход</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Помощь</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Открыть URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Открыть несколько URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Сохранить плейлист…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Сохранить плейлист</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Плейлист</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Сохранить плейлист в файл</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>Не удаётся сохранить «%@».</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>У вас нет прав на запись в это место.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Запись на диск невозможна.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Диск заполнен.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Папка не существует.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Это папка.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Настройки…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>О Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Проверить наличие новой версии…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Половинный размер</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Обычный размер</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Двойной размер</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>На весь экран</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>По размеру экрана</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>По ширине</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>По высоте</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Увеличить</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Уменьшить</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Показать панель управления</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Панель поверх изображения</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Панель поверх изображения: выкл., всегда, при движении указателя</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Панель поверх изображения: выкл.</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Панель поверх изображения: всегда</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Панель поверх изображения: при движении указателя</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Дорожки…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Звук и субтитры в одном меню</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Скрыть панель управления</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Следующая информация на экране</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Предыдущая информация на экране</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Перемотка вперёд</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Перемотка назад</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Скачок вперёд</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Скачок назад</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>В начало</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>В конец</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Следующий фильм</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Предыдущий фильм</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Без повтора</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Без повтора</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Повторять один</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Повторять все</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Исправить</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Громче</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Тише</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Обычная громкость</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Минимальная громкость</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Следующий экран</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Предыдущий экран</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Ещё…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Весь список: поиск, перемещение и удаление фильмов</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Плейлист</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Вверх</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Вниз</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>Фильмов: %@ из %@</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Справка по Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Открыть фильмы</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Половинный, обычный и двойной размер</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>По размеру экрана, по ширине, по высоте</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Увеличить и уменьшить</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Панель управления</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Информация на экране: время, фильм, субтитры, повтор, громкость</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Воспроизведение, пауза, возврат к обычной скорости</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Вперёд и назад: по кадру на паузе, всё быстрее при воспроизведении</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Скачок вперёд и назад</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Начало и конец фильма</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Следующий и предыдущий фильм</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Двойной щелчок</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Средняя кнопка</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Кнопка «Назад»</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Кнопка «Вперёд»</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Колесо вверх</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Колесо вниз</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Повтор: выкл., один, все</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Громче и тише</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Следующие и предыдущие субтитры</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Звук раньше</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Звук позже</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Звук как в файле</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Звук раньше и позже</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Звук по времени файла</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Задержка звука: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Добавить субтитры…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Добавить субтитры</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Добавить к фильму файл субтитров</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>В «%@» нет субтитров, которые можно прочитать</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Добавить к фильму как субтитры</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Показывать раньше</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Показывать позже</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Как в файле</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Показывать субтитры раньше</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Показывать субтитры позже</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Субтитры по времени их файла</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Субтитры раньше и позже</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Субтитры по времени их файла</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Первая строка звучит сейчас</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Последняя строка звучит сейчас</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Синхронизация по двум строкам: одна клавиша, пока звучит первая строка, другая — пока звучит последняя</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Увеличить текст</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Уменьшить текст</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Увеличить субтитры</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Уменьшить субтитры</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Субтитры крупнее и мельче</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Выше</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Ниже</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Субтитры выше</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Субтитры ниже</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Субтитры выше и ниже</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Задержка субтитров: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Размер субтитров: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Высота субтитров: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Синхронизировать не удаётся: строки шли бы более чем вдвое быстрее или медленнее</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Исправить повреждённые субтитры</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Следующий и предыдущий экран</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Западноевропейская (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Западноевропейская (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Западноевропейская (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Западноевропейская (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Западноевропейская (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Западноевропейская (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Латиница США (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Центральноевропейская (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Центральноевропейская (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Центральноевропейская (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Центральноевропейская (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Западноевропейская (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Центральноевропейская (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Скандинавская (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Исландская (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Скандинавская (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Балтийская (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Балтийская (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Балтийская (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Кельтская (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Кириллица (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Кириллица (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Кириллица (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Украинская (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Кириллица (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Кириллица (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Русская (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Греческая (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Греческая (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Греческая (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Греческая (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Греческая (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Турецкая (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Турецкая (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Турецкая (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Турецкая (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Иврит (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Иврит (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Иврит (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Арабская (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Арабская (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Арабская (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Португальская (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Французская (Канада) (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Тайская (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Тайская (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Вьетнамская (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Японская (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Японская (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Японская (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Японская (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Японская (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Японская (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Китайская (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Китайская упрощённая (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Китайская упрощённая (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Китайская упрощённая (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Китайская упрощённая (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Китайская (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Китайская традиционная (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Китайская традиционная (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Китайская традиционная (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Китайская традиционная (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Корейская (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Корейская (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Корейская (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>&amp;Цвет:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Цвет букв и линии вокруг подложки</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Шрифт:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Семейство шрифта</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Раз&amp;мер:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>В пунктах экрана высотой 1080 пунктов; на экране выше буквы растут вместе с ним</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Тень</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Ри&amp;совать тень</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>С тенью буквы читаются на любом изображении</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Цве&amp;т:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Цвет тени и её прозрачность</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Ра&amp;змытие:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Насколько размыт край тени, в пунктах</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Впр&amp;аво:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Насколько тень смещена вправо, в пунктах; меньше 0 — влево</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Ввер&amp;х:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Насколько тень смещена вверх, в пунктах; меньше 0 — вниз</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>По &amp;вертикали:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>На какой высоте располагается</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>По &amp;горизонтали:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>С какой стороны экрана располагается</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Сверху</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Посередине</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Снизу</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Внутри изображения</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>На краю изображения</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Под изображением</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Подложка</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Цвет вокруг изображения</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>&amp;Рисовать подложку</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Подложка под текстом</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Цв&amp;ет:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Цвет подложки и её прозрачность</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Скруглить &amp;углы</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Углы подложки скруглены</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Ра&amp;диус:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Насколько скруглены углы, в пунктах</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Рисоват&amp;ь рамку</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Линия вокруг подложки цветом текста</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Т&amp;олщина:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Толщина линии в пунктах</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Плавность и непрозрачность</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>По&amp;явление:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Сколько длится полное появление; 0 — показать сразу</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>&amp;Исчезание:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Сколько длится полное исчезание; 0 — скрыть сразу</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Показ:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Сколько остаётся на экране между появлением и исчезанием</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Непрозрачность, &amp;когда скрыто:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Что остаётся видно, когда скрыто: 0 % — ничего</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Непрозрачность при показе:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Насколько непрозрачно при показе: меньше 100 % — изображение просвечивает</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Сбросить</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Возвращает этот стиль в исходное состояние</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Отменить сброс</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Возвращает стиль, каким он был до сброса</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ с</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Образец</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Как это выглядит поверх фильма или поверх светлого и тёмного изображения</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Какой чудесный вечер!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Громкость: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Фильм</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>При запуске без файла</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Ни&amp;чего не открывать</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro запускается с пустым экраном</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Откр&amp;ыть последний плейлист</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Фильмы прошлого сеанса открываются на том месте, где вы остановились</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Спроси&amp;ть о файлах</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro начинает с окна открытия фильмов</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Р&amp;азмер:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Размер, в котором показываются фильмы: сейчас и при следующем запуске</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Другой масштаб</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>&amp;Окно:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Остаётся ли фильм поверх окон других программ, пока активен Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Пан&amp;ель поверх изображения:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Там, где под изображением панели нет: крупная панель, которая появляется с указателем или остаётся</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Всегда</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>При движении указателя</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Среди других окон</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Поверх других окон</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Пока&amp;зывать панель управления</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Панель с воспроизведением, временем и громкостью под изображением</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Задать &amp;яркость экрана:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Пока работает Lumaro; затем яркость экрана станет прежней</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Яркость экрана, пока работает Lumaro</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Яркость экрана</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Изо&amp;бражение</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>К&amp;онтраст:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Яркость:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Гамма:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Н&amp;асыщенность:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>О&amp;ттенок:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Так показывается каждый фильм, а тот, что на экране, — сразу</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Яркость этого экрана изменить нельзя</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Д&amp;лина скачка:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>На сколько секунд скачок перемещает вперёд или назад</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>секунд</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Сохранять &amp;громкость до следующего запуска</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro запускается с той же громкостью, с какой закончил</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Пока активна другая программа</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Пр&amp;иостановить фильм</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Он продолжится, когда вы вернётесь</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Ск&amp;рыть окно</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Окно сворачивается и возвращается вместе с Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Продолжать с &amp;места остановки</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Запоминаются позиции и субтитры последней тысячи фильмов; они перечислены в меню «Недавние фильмы»</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Плейлист</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>К&amp;ак добавлены</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Фильмы идут в том порядке, в каком были добавлены</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Вп&amp;еремешку</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Фильмы идут в случайном порядке</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>По и&amp;мени</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Фильмы идут по порядку имён</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Сравнивать &amp;числа по значению</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Часть 2 идёт перед частью 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>По по&amp;лному пути</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Папки остаются вместе</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Только по &amp;имени файла</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>В каких бы папках ни лежали фильмы</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Пов&amp;тор:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Что повторяется: сейчас и в новых плейлистах</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Сразу воспроизводить &amp;открытое</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Иначе фильмы показываются и ждут</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Пе&amp;реходить к следующему фильму</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Когда фильм заканчивается, воспроизводится следующий в списке</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Выходить в конце списка</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Если список не повторяется</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>С&amp;убтитры</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Показ</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>П&amp;оказывать субтитры</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>И для фильмов, которые будут открыты позже</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Учитывать &amp;разметку</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Курсив, цвета и положение из файлов субтитров действуют; иначе они отбрасываются</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;Искать файлы субтитров рядом с фильмами</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>При открытии фильма</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Кодиро&amp;вка:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Как хранятся буквы в файлах субтитров; «Автоматически» определяет это по файлу</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Кодировка файлов субтитров</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Частота кадров:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Для файлов субтитров, в которых считаются кадры, а не секунды</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Как у фильма</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Исправ&amp;лять повреждённые файлы субтитров</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Повреждённое читается, насколько это возможно</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Предпочитаемые языки</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Предпочитаемые языки</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Фильмы начинаются с субтитрами на первом из этих языков, который найдётся. Изначально это языки вашей системы.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Добавить язык</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Добавляет язык в список</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>В&amp;ыше</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Перемещает язык вверх по списку</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Ни&amp;же</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Перемещает язык вниз по списку</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>Уд&amp;алить</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Удаляет язык из списка</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Наложения</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Наименьший &amp;размер текста:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Текст поверх фильма не бывает мельче</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>О&amp;тступ от краёв:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Как далеко от краёв окна держится то, что показано поверх фильма</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Показывать &amp;отклик</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Команды сообщают о том, что сделано</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>Сохранять &amp;информацию на экране до следующего запуска</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Снова показывается последняя выбранная информация</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Как выглядят тексты поверх фильма и окно</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Стили наложений</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Как выглядят субтитры</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Стили субтитров</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Дополнительно</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Указатель</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>Скрывать &amp;через:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Сколько указатель неподвижен, прежде чем скроется</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Новые версии</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Lumaro обновляется пакетами вашей системы.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>П&amp;роверять наличие новых версий</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>При запуске Lumaro, так часто, как задано ниже</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>В &amp;том числе тестовых версий</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Версии, которые ещё проходят проверку</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>К&amp;ак часто:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Сколько времени проходит между проверками</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>При каждом запуске</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Ежедневно</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Еженедельно</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Каждые 30 дней</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Последняя проверка:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Результат:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Пр&amp;оверить сейчас</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Сразу проверяет наличие новой версии</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Диагностика</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Пульт</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Реагировать на &amp;инфракрасные пульты</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Пока плеер работает, их кнопки принадлежат только ему</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>&amp;Вести журнал</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Записи для поиска ошибок — в системном журнале или терминале</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Сбросить страницу</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Возвращает настройки этой страницы в исходное состояние. У стилей для этого есть своя кнопка.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Отменить сброс</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Возвращает прежние настройки этой страницы (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Найти настройку</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Ищет настройку по словам (Ctrl+F). Стрелки вверх и вниз ведут к другим, Enter — к самой настройке.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d из %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Другие кодировки</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d с</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d пт</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Поиск: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Введите текст для поиска</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Изменить настройки</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Отклик</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Тексты</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Растровые</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Информация на экране</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Не удаётся сохранить настройки.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Изменения действуют до выхода из Lumaro. Не удаётся записать файл «%@».</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Настройки повреждены.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro начинает с новых. Повреждённый файл сохранён как «%@».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Не удаётся прочитать настройки.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Файл «%@» остаётся без изменений. Изменения действуют до выхода из Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Запомненные позиции в фильмах повреждены; их файл отложен.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Не удаётся прочитать запомненные позиции в фильмах.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Позиции в фильмах запомнила более новая версия Lumaro; этой версии они недоступны.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Клавиши</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>По&amp;иск:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Слова из названия команды или её клавиша</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Команды по меню; жирным выделены команды с вашими клавишами</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Команды и их клавиши</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>К&amp;лавиши команды:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Клавиши выделенной команды</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Добавит&amp;ь клавишу…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Затем нажмите клавишу, при желании вместе с Ctrl, Alt, Shift или Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Уд&amp;алить клавишу</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Выделенная клавиша больше ничего не значит</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Сб&amp;росить</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Команда получает клавиши, с которыми поставляется Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Сбросить &amp;все</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Все команды получают клавиши, с которыми поставляется Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>О&amp;тменить</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Отменяет последнее изменение клавиши</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>П&amp;ереназначить</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Отныне клавиша вызывает выделенную команду</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Клавиша сохраняет своё значение</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Нажмите клавишу для «%@». Esc — назад.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro не знает этой клавиши.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc закрывает окна и завершает Lumaro; это изменить нельзя.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ принадлежит рабочему столу.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ уже вызывает «%@».</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>У «%@» больше не может быть клавиш; сначала удалите одну.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ теперь вызывает «%@».</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Следующий режим повтора</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Предыдущий режим повтора</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Показать плейлист</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Следующие субтитры</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Предыдущие субтитры</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Без субтитров</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Откройте фильм из меню</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>или перетащите файлы сюда.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Клавиши команды</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Открывать страницы &amp;видеосайтов через yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Об адресе, который не является фильмом, спрашивается программа yt-dlp, если она установлена</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Открыть фильмы</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Открыть папку…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Фильмы и звук</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Все файлы</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Добавить в плейлист</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Открыть папки с фильмами</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Открыть адрес, несколько адресов</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Открыть URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Открыть несколько URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Адрес или путь фильма:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Адреса или пути фильмов, по одному в строке:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Адреса</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Добавить в плейлист</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>То, что воспроизводится, продолжится; то же делает удерживание Alt</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Заменить плейлист</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Добавить в плейлист</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Это файл субтитров. Субтитры показываются сами, если лежат рядом с фильмом и их имя начинается с его имени.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Это ни адрес, ни путь к файлу.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Продолжено с %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Скорость: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Медленнее</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Быстрее</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Вдвое медленнее</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Вдвое быстрее</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Исходная скорость</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Медленнее и быстрее с той же высотой звука; вдвое медленнее и быстрее</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>С исходной скоростью фильма</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Главы</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Нет глав</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Глава %d из %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Глава %d из %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Следующая глава</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Предыдущая глава</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Следующая и предыдущая глава</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Сохранить кадр</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Сохранить кадр в файл</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Кадр: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Нет кадра для сохранения</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Не удаётся сохранить кадр в %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Перейти ко времени</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Перейти ко времени…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Перейти к указанному времени</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Время в фильме:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Время в фильме, до %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Секунды, минуты или часы: 90, 1:30 или 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Время: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Повтор фрагмента</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Повторять отсюда</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Повторять досюда</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Повтор фрагмента: начало, конец, отмена</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Повтор фрагмента: выкл.</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Повтор с %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Повтор: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Соотношение сторон</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Следующее соотношение сторон</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Соотношение сторон: автоматически, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Соотношение сторон: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Деинтерлейсинг</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Следующий режим деинтерлейсинга</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Деинтерлейсинг: автоматически, вкл., выкл.</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Деинтерлейсинг: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Цвета изображения</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Меньше контраста</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Больше контраста</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Темнее</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Светлее</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Меньше гаммы</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Больше гаммы</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Меньше насыщенности</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Больше насыщенности</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Оттенок к красному</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Оттенок к зелёному</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Контраст, яркость, гамма, насыщенность, оттенок: меньше и больше</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Исходные цвета фильма</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Исходные цвета</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Контраст: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Яркость: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Гамма: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Насыщенность: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Оттенок: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Обрезать чёрные полосы</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Обрезать чёрные полосы</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Обрезка: вкл.</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Обрезка: выкл.</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Чёрных полос нет</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Повернуть на 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Повернуть и отразить изображение</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Повёрнуто на %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Отразить</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Отражение: вкл.</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Отражение: выкл.</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Звуковые дорожки</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Звук: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Следующая звуковая дорожка</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Предыдущая звуковая дорожка</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Следующая и предыдущая звуковая дорожка</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Моно</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Стерео</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>Каналов: %d</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Дорожка %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>форсированные</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Вторые субтитры</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Следующие вторые субтитры</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Вторые субтитры: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Вторые субтитры вверху: следующая дорожка, нет</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Вторыми субтитрами могут быть только текстовые, и ни одна дорожка не показывается дважды</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Качество: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Следующее качество</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Следующее качество потока</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Только одно качество</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Перейти к прямому эфиру</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Перейти к прямому эфиру</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Это не прямой эфир</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Прямой эфир</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Отставание от эфира</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Повторное подключение…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Соединение потеряно</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Показать или скрыть информацию о фильме</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Нет фильма</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Контейнер</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Размер файла</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Битрейт</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Дорожки</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Кадры</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Буфер</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Кодек</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Декодер</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Программный</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Аппаратный (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, показывается как %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Частота кадров</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ в секунду</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ в секунду, сейчас %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Динамический диапазон</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Частота дискретизации</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (воспроизводится)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Показанные субтитры</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Показано</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>С опозданием</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Пропущено</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ с</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Заполнение</translation>
    </message>
</context>
</TS>
