<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>Не вдається відкрити «%@».</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Файл відсутній, пошкоджений або його тип невідомий Lumaro (помилка %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>«%@» може відтворюватися неправильно.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Деякі частини фільму не вдається декодувати (помилка %d). Натисніть «Продовжити», щоб усе одно спробувати.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Немає чого відтворювати.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Серед указаних файлів немає фільмів, які Lumaro може відтворити. Можна вибрати інші.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Файл не існує.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Файл порожній.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Це тека або пристрій, а не файл.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Ви не маєте прав на читання цього файлу.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Це не фільм, який Lumaro може відтворити.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Час очікування відповіді вичерпано.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Немає бібліотек, потрібних для відкриття фільмів.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro не підтримує адрес такого виду.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Сервера з такою назвою немає, або немає з’єднання з мережею.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Сервер недоступний.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Сервер відхилив з’єднання.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>З’єднання із сервером розірвано.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Сервер надсилає файли лише від початку, а дані, потрібні насамперед, містяться в кінці цього фільму. Щоб відтворити фільм, завантажте його.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Сервер запитує ім’я та пароль (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Сервер не дозволяє доступ (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>На сервері немає такого файлу (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Сервер відхилив запит.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>На сервері сталася помилка.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>У цій теці немає фільмів.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Файл не є списком відтворення.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>У списку відтворення немає фільмів.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Список відтворення більший за 32 МБ.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Список відтворення задовгий. Відкрито лише перші 100 000 записів.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Надто багато списків відтворення посилаються один на одного. Цей пропущено.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Пропущено записи на дисках Windows (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Список відтворення отримано з мережі. Пропущено записи, що вказують на файли цього комп’ютера (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Пропущено записи, що не вказують ані на файл, ані на адресу (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Теки, недоступні для читання (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Не все вдалося переглянути.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… і ще %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>«%@»: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>Не вдається відкрити файли: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>Можуть відтворюватися неправильно фільми: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Немає фільмів, які Lumaro може відтворити, у:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Буферизація: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Зупинено: немає даних від сервера</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Завантаження: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Продовжено з %@
%@: спочатку</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Пошук фільмів: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>Знайдено %@ файл…</numerusform>
            <numerusform>Знайдено %@ файли…</numerusform>
            <numerusform>Знайдено %@ файлів…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Продовжити</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Відкрити…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Недавні фільми</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Очистити меню й забути позиції</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Шукати нові версії?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro може час від часу перевіряти, чи немає новішої версії. Жодних відомостей про вас чи ваші фільми не надсилається. Це можна змінити в налаштуваннях.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Не вдалося перевірити наявність нової версії.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Жоден із сайтів не відповідає. Перевірте з’єднання з інтернетом або спробуйте пізніше.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Оновлень Lumaro немає.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>У вас найновіша версія.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Доступна новіша версія Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>Можна завантажити: %@ версія %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Завантажити зараз…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Пропустити версію</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Пізніше</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Вам подобається Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro — безкоштовна програма. Пожертви допомагають її розвивати.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Пожертвувати…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Установлено найновішу версію</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Доступна новіша %@ версія %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Жоден із сайтів не відповідає</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>стабільна</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>тестова</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Перевірка…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Невідомо</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Ніколи</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Відтворення</translation>
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
        <translation>На початок</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>У кінець</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Перемотування вперед ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Перемотування назад ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>На %d с уперед</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>На %d с назад</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Наступний кадр</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Попередній кадр</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Наступний: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Попередній: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Наступний екран</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Попередній екран</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Сон</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Перезавантажити комп’ютер</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Вимкнути комп’ютер</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Завершити сеанс</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Не вдалося перезавантажити: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Не вдалося вимкнути: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Не вдалося завершити сеанс: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Пробіл</translation>
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
        <translation>Медіа: відтворення</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Медіа: стоп</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Медіа: наступний</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Медіа: попередній</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Медіа: гучніше</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Медіа: тихіше</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Медіа: без звуку</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Не вдалося перейти до сну: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Розмір: половинний</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Розмір: звичайний</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Розмір: подвійний</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Розмір: на весь екран</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Розмір: за шириною</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Розмір: за висотою</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Розмір: збільшено</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Розмір: зменшено</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Панель керування: увімк.</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Панель керування: вимк.</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Гучність: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Без звуку: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Без звуку</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Увімк.</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Вимк.</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Час: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Фільм: %@</translation>
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
        <translation>усі</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Немає</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Субтитри: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Виправлення: увімк.</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Виправлення: вимк.</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>У ньому не читається %d рядок.</numerusform>
            <numerusform>У ньому не читаються %d рядки.</numerusform>
            <numerusform>У ньому не читаються %d рядків.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>У ньому не читається %d зображення.</numerusform>
            <numerusform>У ньому не читаються %d зображення.</numerusform>
            <numerusform>У ньому не читаються %d зображень.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>Може допомогти «Виправити» (меню «Субтитри»).</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Стиль</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Автоматично</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Натисніть %@, щоб відкрити фільм,</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>або перетягніть файли сюди. %@ — список усіх клавіш.</translation>
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
        <translation>Фільм</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Відтворення</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Гучність</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Список відтворення</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Субтитри</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Вікно</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Введіть, що ви шукаєте. Усі команди є також у меню: біля верхнього краю екрана або під правою кнопкою миші.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Що ви хочете зробити?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Команд із такими словами немає.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Перегляд і переміщення фільмом</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Гучніше, тихіше, без звуку</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Субтитри під час перегляду</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Розмір зображення та відомості про фільм</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Вибір фільму</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Перехід на інший екран</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Відкриття, налаштування й вихід</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Допомога</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Відкрити URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Відкрити кілька URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Зберегти список відтворення…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Зберегти список відтворення</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Список відтворення</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Зберегти список відтворення у файл</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>Не вдається зберегти «%@».</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Ви не маєте прав на запис у це місце.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Запис на диск неможливий.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Диск заповнено.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Тека не існує.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Це тека.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Налаштування…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Про Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Перевірити наявність нової версії…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Половинний розмір</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Звичайний розмір</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Подвійний розмір</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>На весь екран</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>За розміром екрана</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>За шириною</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>За висотою</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Збільшити</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Зменшити</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Показати панель керування</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Панель поверх зображення</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Панель поверх зображення: вимк., завжди, під час руху вказівника</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Панель поверх зображення: вимк.</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Панель поверх зображення: завжди</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Панель поверх зображення: під час руху вказівника</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Доріжки…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Звук і субтитри в одному меню</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Приховати панель керування</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Наступна інформація на екрані</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Попередня інформація на екрані</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Перемотати вперед</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Перемотати назад</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Стрибок уперед</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Стрибок назад</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>На початок</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>У кінець</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Наступний фільм</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Попередній фільм</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Без повтору</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Без повтору</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Повторювати один</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Повторювати всі</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Виправити</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Гучніше</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Тихіше</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Звичайна гучність</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Найменша гучність</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Без звуку</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Наступний екран</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Попередній екран</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Ще…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Увесь список: пошук, переміщення та вилучення фільмів</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Список відтворення</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Фільтр</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Вгору</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Вниз</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Вилучити</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>Фільмів: %@ із %@</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Довідка Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Відкрити фільми</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Половинний, звичайний і подвійний розмір</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>За розміром екрана, за шириною, за висотою</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Збільшити й зменшити</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Панель керування</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Інформація на екрані: час, фільм, субтитри, повтор, гучність</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Відтворення, пауза, повернення до звичайної швидкості</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Вперед і назад: покадрово на паузі, дедалі швидше під час відтворення</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Стрибок уперед і назад</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Початок і кінець фільму</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Наступний і попередній фільм</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Подвійне клацання</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Середня кнопка</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Кнопка «Назад»</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Кнопка «Вперед»</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Коліщатко вгору</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Коліщатко вниз</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Повтор: вимк., один, усі</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Гучніше й тихіше</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Наступні й попередні субтитри</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Звук раніше</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Звук пізніше</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Звук як у файлі</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Звук раніше й пізніше</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Звук за часом файлу</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Затримка звуку: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Додати субтитри…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Додати субтитри</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Додати до фільму файл субтитрів</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>У «%@» немає субтитрів, які можна прочитати</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Додати до фільму як субтитри</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Показувати раніше</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Показувати пізніше</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Як у файлі</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Показувати субтитри раніше</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Показувати субтитри пізніше</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Субтитри за часом їхнього файлу</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Субтитри раніше й пізніше</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Субтитри за часом їхнього файлу</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Перший рядок звучить зараз</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Останній рядок звучить зараз</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Синхронізація за двома рядками: одна клавіша, поки звучить перший рядок, інша — поки звучить останній</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Збільшити текст</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Зменшити текст</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Збільшити субтитри</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Зменшити субтитри</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Субтитри більші й менші</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Вище</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Нижче</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Субтитри вище</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Субтитри нижче</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Субтитри вище й нижче</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Затримка субтитрів: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Розмір субтитрів: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Висота субтитрів: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Синхронізувати не вдається: рядки йшли б більш ніж удвічі швидше або повільніше</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Виправити пошкоджені субтитри</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Наступний і попередній екран</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Західноєвропейське (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Західноєвропейське (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Західноєвропейське (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Західноєвропейське (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Західноєвропейське (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Західноєвропейське (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Латиниця США (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Центральноєвропейське (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Центральноєвропейське (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Центральноєвропейське (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Центральноєвропейське (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Західноєвропейське (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Центральноєвропейське (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Скандинавське (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Ісландське (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Скандинавське (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Балтійське (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Балтійське (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Балтійське (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Кельтське (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Кирилиця (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Кирилиця (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Кирилиця (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Українське (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Кирилиця (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Кирилиця (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Російське (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Грецьке (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Грецьке (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Грецьке (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Грецьке (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Грецьке (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Турецьке (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Турецьке (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Турецьке (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Турецьке (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Іврит (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Іврит (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Іврит (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Арабське (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Арабське (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Арабське (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Португальське (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Французьке (Канада) (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Тайське (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Тайське (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>В’єтнамське (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Японське (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Японське (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Японське (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Японське (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Японське (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Японське (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Китайське (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Китайське спрощене (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Китайське спрощене (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Китайське спрощене (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Китайське спрощене (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Китайське (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Китайське традиційне (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Китайське традиційне (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Китайське традиційне (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Китайське традиційне (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Корейське (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Корейське (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Корейське (ISO 2022-KR)</translation>
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
        <translation>К&amp;олір:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Колір літер і лінії навколо підкладки</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Шрифт:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Гарнітура літер</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Роз&amp;мір:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>У пунктах екрана заввишки 1080 пунктів; на вищому екрані літери ростуть разом із ним</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Тінь</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Малювати тін&amp;ь</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Із тінню літери читаються на будь-якому зображенні</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Кол&amp;ір:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Колір тіні та її прозорість</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Ро&amp;змиття:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Наскільки розмитий край тіні, у пунктах</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>П&amp;раворуч:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Наскільки тінь зсунуто праворуч, у пунктах; менше 0 — ліворуч</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>&amp;Угору:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Наскільки тінь зсунуто вгору, у пунктах; менше 0 — вниз</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Розташування</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>По в&amp;ертикалі:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>На якій висоті розташовано</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>По &amp;горизонталі:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>З якого боку екрана розташовано</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Ліворуч</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Угорі</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Посередині</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Унизу</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>У зображенні</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>На краю зображення</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Під зображенням</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Підкладка</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Тло</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Колір навколо зображення</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Малю&amp;вати підкладку</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Підкладка під текстом</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Ко&amp;лір:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Колір підкладки та її прозорість</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>З&amp;аокруглити кути</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Кути підкладки заокруглені</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Ра&amp;діус:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Наскільки заокруглені кути, у пунктах</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Мал&amp;ювати рамку</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Лінія навколо підкладки кольору тексту</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>&amp;Товщина:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Товщина лінії в пунктах</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Плавність і непрозорість</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>По&amp;ява:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Скільки триває повна поява; 0 — показати одразу</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>Зн&amp;икнення:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Скільки триває повне зникнення; 0 — приховати одразу</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Показ:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Скільки залишається на екрані між появою та зникненням</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Непрозорість, &amp;коли приховано:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Що залишається видно, коли приховано: 0 % — нічого</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Непрозорість під час показу:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Наскільки непрозоро під час показу: менше 100 % — зображення просвічує</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Скинути</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Повертає цей стиль до початкового стану</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Скасувати скидання</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Повертає стиль, яким він був до скидання</translation>
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
        <translation>Зразок</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Який це має вигляд поверх фільму або поверх світлого й темного зображень</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Який чудовий вечір!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Гучність: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Налаштування</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Фільм</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Після запуску без файлу</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Н&amp;ічого не відкривати</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro запускається з порожнім екраном</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Відк&amp;рити останній список відтворення</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Фільми попереднього сеансу відкриваються на тому місці, де ви зупинилися</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>З&amp;апитати про файли</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro починає з вікна відкриття фільмів</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Зображення</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Роз&amp;мір:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Розмір, у якому показуються фільми: зараз і після наступного запуску</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Інший масштаб</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Вікн&amp;о:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Чи залишається фільм поверх вікон інших програм, поки активний Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Пан&amp;ель поверх зображення:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Там, де під зображенням панелі немає: більша панель, що з’являється з вказівником або залишається</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Завжди</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Під час руху вказівника</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Серед інших вікон</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Поверх інших вікон</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Показува&amp;ти панель керування</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Панель із відтворенням, часом і гучністю під зображенням</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Установити &amp;яскравість екрана:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Поки працює Lumaro; потім яскравість екрана стане попередньою</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Яскравість екрана, поки працює Lumaro</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Яскравість екрана</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Зо&amp;браження</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>К&amp;онтраст:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Яскравість:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Гама:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Н&amp;асиченість:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>В&amp;ідтінок:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Так показується кожен фільм, а той, що на екрані, — одразу</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Яскравість цього екрана змінити не можна</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Відтворення</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Дов&amp;жина стрибка:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>На скільки секунд стрибок переміщує вперед або назад</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>секунд</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Зберігати &amp;гучність до наступного запуску</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro запускається з тією ж гучністю, з якою завершив роботу</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Поки активна інша програма</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Пр&amp;изупинити фільм</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Він продовжиться, коли ви повернетеся</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>&amp;Приховати вікно</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Вікно згортається й повертається разом із Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Продовжувати &amp;з місця зупинки</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Запам’ятовуються позиції та субтитри останньої тисячі фільмів; їх перелічено в меню «Недавні фільми»</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>Список &amp;відтворення</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>&amp;Як додано</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Фільми йдуть у тому порядку, в якому їх додано</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Уп&amp;ереміш</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Фільми йдуть у випадковому порядку</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>З&amp;а назвою</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Фільми йдуть за назвами</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Порівнювати &amp;числа за значенням</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Частина 2 йде перед частиною 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>&amp;За повним шляхом</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Теки залишаються разом</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>&amp;Лише за назвою файлу</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>У яких би теках не лежали фільми</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>П&amp;овтор:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Що повторюється: зараз і в нових списках відтворення</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Од&amp;разу відтворювати відкрите</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Інакше фільми показуються й чекають</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>&amp;Переходити до наступного фільму</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Коли фільм закінчується, відтворюється наступний у списку</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>В&amp;иходити в кінці списку</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Якщо список не повторюється</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>С&amp;убтитри</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Показ</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>П&amp;оказувати субтитри</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>І для фільмів, які буде відкрито пізніше</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Ураховувати &amp;розмітку</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Курсив, кольори й розташування з файлів субтитрів діють; інакше їх пропущено</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;Шукати файли субтитрів поруч із фільмами</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Під час відкриття фільму</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Файли</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Кодув&amp;ання:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Як зберігаються літери у файлах субтитрів; «Автоматично» визначає це за файлом</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Кодування файлів субтитрів</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Частота кадрів:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Для файлів субтитрів, у яких лічать кадри, а не секунди</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Як у фільму</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Виправляти &amp;пошкоджені файли субтитрів</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Пошкоджене читається, наскільки це можливо</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Бажані мови</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Бажані мови</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Фільми починаються із субтитрами першою з цих мов, яка знайдеться. Спочатку це мови вашої системи.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Додати мову</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Додає мову до списку</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Ви&amp;ще</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Переміщує мову вгору в списку</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Ни&amp;жче</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Переміщує мову вниз у списку</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>В&amp;илучити</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Вилучає мову зі списку</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Накладання</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Найменший &amp;розмір тексту:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Текст поверх фільму не буває меншим</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>В&amp;ідступ від країв:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Як далеко від країв вікна тримається те, що показано поверх фільму</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>&amp;Показувати відгук</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Команди повідомляють, що зроблено</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Зберігати інформацію на екрані до наступного запуску</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Знову показується остання вибрана інформація</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Вигляд текстів поверх фільму та вікна</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Стилі накладань</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Вигляд субтитрів</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Стилі субтитрів</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Додатково</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Вказівник</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>Приховувати &amp;через:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Скільки вказівник нерухомий, перш ніж його буде приховано</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Нові версії</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Lumaro оновлюється пакунками вашої системи.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;Шукати нові версії</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Під час запуску Lumaro, так часто, як задано нижче</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>&amp;Також тестові версії</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Версії, які ще випробовуються</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Як часто:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Скільки часу минає між перевірками</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Під час кожного запуску</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Щодня</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Щотижня</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Кожні 30 днів</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Остання перевірка:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Результат:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;Перевірити зараз</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Одразу шукає нову версію</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Діагностика</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Пульт</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>&amp;Реагувати на інфрачервоні пульти</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Поки програвач працює, їхні кнопки належать лише йому</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Вести &amp;журнал</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Записи для пошуку помилок — у системному журналі або терміналі</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Скинути сторінку</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Повертає параметри цієї сторінки до початкового стану. Стилі мають для цього власну кнопку.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Скасувати скидання</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Повертає попередні параметри цієї сторінки (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Знайти параметр</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Шукає параметр за словами (Ctrl+F). Стрілки вгору та вниз ведуть до інших, Enter — до самого параметра.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d із %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Нічого не знайдено</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Інші кодування</translation>
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
        <translation>Пошук: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Введіть текст для пошуку</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Змінити налаштування</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Відгук</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Тексти</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Растрові</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Інформація на екрані</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Вікно</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Не вдається зберегти налаштування.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Зміни діють до виходу з Lumaro. Не вдається записати файл «%@».</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Налаштування пошкоджено.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro починає з нових. Пошкоджений файл збережено як «%@».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Не вдається прочитати налаштування.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Файл «%@» залишається без змін. Зміни діють до виходу з Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Запам’ятовані позиції у фільмах пошкоджено; їхній файл відкладено.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Не вдається прочитати запам’ятовані позиції у фільмах.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Позиції у фільмах запам’ятала новіша версія Lumaro; цій версії вони недоступні.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Клавіші</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>По&amp;шук:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Слова з назви команди або її клавіша</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Команди за меню; жирним виділено команди з вашими клавішами</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Команди та їхні клавіші</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Клавіші</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>К&amp;лавіші команди:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Клавіші виділеної команди</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Д&amp;одати клавішу…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Потім натисніть клавішу, за бажання разом із Ctrl, Alt, Shift або Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>В&amp;илучити клавішу</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Виділена клавіша більше нічого не означає</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Скину&amp;ти</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Команда отримує клавіші, з якими постачається Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Скинути вс&amp;і</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Усі команди отримують клавіші, з якими постачається Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>&amp;Повернути</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Скасовує останню зміну клавіші</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>П&amp;ерепризначити</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Відтепер клавіша викликає виділену команду</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>Ск&amp;асувати</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Клавіша зберігає своє значення</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Натисніть клавішу для «%@». Esc — назад.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro не знає цієї клавіші.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc закриває вікна й завершує Lumaro; це змінити не можна.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ належить стільниці.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ вже викликає «%@».</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>«%@» більше не може мати клавіш; спочатку вилучіть одну.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ тепер викликає «%@».</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Наступний режим повтору</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Попередній режим повтору</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Показати список відтворення</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Наступні субтитри</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Попередні субтитри</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Без субтитрів</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Відкрийте фільм із меню</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>або перетягніть файли сюди.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Клавіші команди</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Відкривати сторінки відеосайтів &amp;через yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Про адресу, яка не є фільмом, запитують програму yt-dlp, якщо її встановлено</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Відкрити фільми</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Відкрити теку</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Відкрити теку…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Фільми та звук</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Усі файли</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Додати до списку відтворення</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Відкрити теки з фільмами</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Відкрити адресу, кілька адрес</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Відкрити URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Відкрити кілька URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Адреса або шлях фільму:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Адреси або шляхи фільмів, по одному в рядку:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Адреса</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Адреси</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Додати до списку відтворення</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Те, що відтворюється, продовжиться; те саме робить утримування Alt</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Замінити список відтворення</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Додати до списку відтворення</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Це файл субтитрів. Субтитри показуються самі, якщо лежать поруч із фільмом і їхня назва починається з його назви.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Це ані адреса, ані шлях до файлу.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Продовжено з %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Швидкість</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Швидкість: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Повільніше</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Швидше</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Удвічі повільніше</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Удвічі швидше</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Початкова швидкість</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Повільніше й швидше з тією ж висотою звуку; удвічі повільніше й швидше</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>З початковою швидкістю фільму</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Розділи</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Немає розділів</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Розділ %d із %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Розділ %d із %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Наступний розділ</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Попередній розділ</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Наступний і попередній розділ</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Зберегти кадр</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Зберегти кадр у файл</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Кадр: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Немає кадру для збереження</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Не вдається зберегти кадр у %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Перейти до часу</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Перейти до часу…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Перейти до вказаного часу</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Час у фільмі:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Час у фільмі, до %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Секунди, хвилини або години: 90, 1:30 або 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Час: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Повтор фрагмента</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Повторювати звідси</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Повторювати досюди</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Повтор фрагмента: початок, кінець, скасування</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Повтор фрагмента: вимк.</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Повтор із %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Повтор: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Співвідношення сторін</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Наступне співвідношення сторін</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Співвідношення сторін: автоматично, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Співвідношення сторін: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Деінтерлейсинг</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Наступний режим деінтерлейсингу</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Деінтерлейсинг: автоматично, увімк., вимк.</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Деінтерлейсинг: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Кольори зображення</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Менше контрасту</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Більше контрасту</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Темніше</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Світліше</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Менше гами</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Більше гами</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Менше насиченості</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Більше насиченості</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Відтінок до червоного</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Відтінок до зеленого</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Контраст, яскравість, гама, насиченість, відтінок: менше й більше</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Початкові кольори фільму</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Початкові кольори</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Контраст: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Яскравість: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Гама: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Насиченість: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Відтінок: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Обрізати чорні смуги</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Обрізати чорні смуги</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Обрізання: увімк.</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Обрізання: вимк.</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Чорних смуг немає</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Повернути на 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Повернути й віддзеркалити зображення</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Повернуто на %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Віддзеркалити</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Віддзеркалення: увімк.</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Віддзеркалення: вимк.</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Звукові доріжки</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Звук: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Наступна звукова доріжка</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Попередня звукова доріжка</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Наступна й попередня звукова доріжка</translation>
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
        <translation>Каналів: %d</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Доріжка %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>форсовані</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Другі субтитри</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Наступні другі субтитри</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Другі субтитри: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Другі субтитри вгорі: наступна доріжка, немає</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Другими субтитрами можуть бути лише текстові, і жодна доріжка не показується двічі</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Якість</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Якість: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Наступна якість</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Наступна якість потоку</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Лише одна якість</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Перейти до прямого ефіру</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Перейти до прямого ефіру</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Це не прямий ефір</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Наживо</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Відставання від ефіру</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Повторне з’єднання…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>З’єднання втрачено</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Інформація</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Показати або приховати інформацію про фільм</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Немає фільму</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Контейнер</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Тривалість</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Розмір файлу</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Бітова швидкість</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Доріжки</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Кадри</translation>
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
        <translation>Програмний</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Апаратний (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, показується як %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Частота кадрів</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ за секунду</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ за секунду, зараз %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Динамічний діапазон</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Стандартний</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Колір</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Канали</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Частота дискретизації</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Виведення</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (відтворюється)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Показані субтитри</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Показано</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Із запізненням</translation>
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
        <translation>Заповнення</translation>
    </message>
</context>
</TS>
