<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>לא ניתן לפתוח את ”⁨%@⁩”.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>הקובץ חסר, פגום או מסוג ש־Lumaro אינו מכיר (שגיאה %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>ייתכן ש”⁨%@⁩” לא ינוגן כראוי.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>לא ניתן לפענח חלקים מהסרט (שגיאה %d). בחרו ”המשך” כדי לנסות בכל זאת.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>אין מה לנגן.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>אף אחד מהקבצים שניתנו אינו סרט ש־Lumaro יכול לנגן. ניתן לבחור קבצים אחרים.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>הקובץ אינו קיים.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>הקובץ ריק.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>זו תיקייה או התקן, לא קובץ.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>אין לך הרשאה לקרוא את הקובץ.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>זה אינו סרט ש־Lumaro יכול לנגן.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>לא התקבלה תשובה בזמן.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>חסרות הספריות שפותחות סרטים.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>‏Lumaro אינו מכיר כתובות מסוג זה.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>אין שרת בשם זה, או שאין חיבור לרשת.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>לא ניתן להגיע לשרת.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>השרת דחה את החיבור.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>החיבור לשרת נותק.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>השרת שולח קבצים רק מתחילתם, ומה שנדרש ראשון נמצא בסוף הסרט הזה. כדי לנגן אותו, יש להוריד אותו.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>השרת מבקש שם וסיסמה (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>השרת אינו מאפשר זאת (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>אין קובץ כזה בשרת (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>השרת דחה את הבקשה.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>השרת השיב בשגיאה משלו.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>אין סרטים בתיקייה הזו.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>הקובץ אינו רשימת השמעה.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>אין סרטים ברשימת ההשמעה.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>רשימת ההשמעה גדולה מ־32 מ״ב.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>רשימת ההשמעה ארוכה מדי. נפתחו רק 100,000 הפריטים הראשונים.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>יותר מדי רשימות השמעה מפנות זו לזו. הרשימה הזו הושמטה.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>פריטים בכוננים של Windows הושמטו (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>רשימת ההשמעה הגיעה מהרשת. פריטים שמפנים לקבצים במחשב הזה הושמטו (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>פריטים שאינם מפנים לקובץ או לכתובת הושמטו (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>תיקיות שאין הרשאה לקרוא (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>לא ניתן היה לחפש בכול.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… ועוד %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>”⁨%@⁩”: ⁨%@⁩ (⁨%@⁩)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>קבצים שלא ניתן לפתוח: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>סרטים שייתכן שלא ינוגנו כראוי: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>אין סרט ש־Lumaro יכול לנגן בתוך:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>אגירה: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>נעצר: אין נתונים מהשרת</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>טעינה: ⁨%@⁩</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>המשך מ־%@
%@: מההתחלה</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>חיפוש סרטים: ⁨%@⁩</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>נמצא קובץ %@…</numerusform>
            <numerusform>נמצאו %@ קבצים…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>פתיחה…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>נפתחו לאחרונה</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>ניקוי התפריט ושכחת המיקומים</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>לחפש גרסאות חדשות?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>‏Lumaro יכול לבדוק מדי פעם אם יש גרסה חדשה. לא נשלח דבר עליך או על הסרטים שלך. ניתן לשנות זאת בהעדפות.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>החיפוש אחר גרסה חדשה נכשל.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>לא ניתן היה להגיע לאף אתר. בדקו את החיבור לאינטרנט או נסו שוב מאוחר יותר.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>‏Lumaro מעודכן.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>זו הגרסה האחרונה.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>יש גרסה חדשה של Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>גרסה (%@) %@ זמינה להורדה.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;הורדה עכשיו…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;דילוג על הגרסה</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>אחר כך</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>נהנים מ־Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>‏Lumaro חינמי. תרומה עוזרת לו להתקיים.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>תרומה…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>מעודכן</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>זמינה גרסה חדשה (%@): %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>לא ניתן להגיע לאף אתר מראה</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>יציבה</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>בטא</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>בבדיקה…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>אף פעם</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>ניגון</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>השהיה</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>עצירה</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>התחלה</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>סוף</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>הרצה קדימה ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>הרצה אחורה ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d שנ׳ קדימה</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d שנ׳ אחורה</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>תמונה קדימה</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>תמונה אחורה</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>הבא: ⁨%@⁩</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>הקודם: ⁨%@⁩</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>המסך הבא</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>המסך הקודם</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>שינה</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>הפעלת המחשב מחדש</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>כיבוי המחשב</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>יציאה מהחשבון</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>ההפעלה מחדש נכשלה: ⁨%@⁩</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>הכיבוי נכשל: ⁨%@⁩</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>היציאה מהחשבון נכשלה: ⁨%@⁩</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>רווח</translation>
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
        <translation>מדיה: ניגון</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>מדיה: עצירה</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>מדיה: הבא</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>מדיה: הקודם</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>מדיה: הגברה</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>מדיה: הנמכה</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>מדיה: השתקה</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>המעבר למצב שינה נכשל: ⁨%@⁩</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>גודל: חצי</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>גודל: רגיל</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>גודל: כפול</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>גודל: מסך מלא</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>גודל: התאמה לרוחב</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>גודל: התאמה לגובה</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>גודל: גדול יותר</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>גודל: קטן יותר</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>סרגל בקרה: פועל</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>סרגל בקרה: כבוי</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>עוצמת שמע: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>השתקה: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>מושתק</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>פועל</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>כבוי</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>זמן: ⁦%@ / %@⁩</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>סרט: ⁨%@⁩</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>חזרה: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>אחד</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>הכול</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>ללא</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>כתוביות: ⁨%@⁩</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>תיקון: פועל</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>תיקון: כבוי</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>לא ניתן לקרוא שורה %d ממנו.</numerusform>
            <numerusform>לא ניתן לקרוא %d שורות ממנו.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>לא ניתן לקרוא תמונה %d ממנו.</numerusform>
            <numerusform>לא ניתן לקרוא %d תמונות ממנו.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>”תיקון” (בתפריט כתוביות) עשוי לעזור.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>סגנון</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>אוטומטי</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>לחצו על ⁨%@⁩ כדי לפתוח סרט</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>או גררו קבצים לכאן. ⁨%@⁩ מציג את כל המקשים.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>קובץ</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>סרט</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>ניגון</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>עוצמת שמע</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>רשימת השמעה</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>כתוביות</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>חלון</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>הקלידו מה אתם מחפשים. כל פקודה נמצאת גם בתפריט: בקצה העליון של המסך או בלחצן הימני של העכבר.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>מה ברצונך לעשות?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>אין פקודה שמכילה את המילים האלה.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>צפייה ומעבר בתוך הסרט</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>חזק יותר, חלש יותר, שקט</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>קריאת כתוביות</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>תמונה גדולה יותר ומה מתנגן</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>בחירה בין הסרטים</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>מעבר למסך אחר</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>פתיחה, הגדרה ויציאה</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>קבלת עזרה</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>עזרה</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>פתיחת כתובת URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>פתיחת כתובות URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>שמירת רשימת השמעה…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>שמירת רשימת השמעה</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>רשימת השמעה</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>שמירת רשימת ההשמעה לקובץ</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>לא ניתן לשמור את ”⁨%@⁩”.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>אין לך הרשאה לכתוב שם.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>לא ניתן לכתוב לכונן.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>הכונן מלא.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>התיקייה אינה קיימת.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>זו תיקייה.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>העדפות…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>על אודות Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>בדיקת גרסה חדשה…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>חצי גודל</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>גודל רגיל</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>גודל כפול</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>מסך מלא</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>התאמה למסך</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>התאמה לרוחב</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>התאמה לגובה</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>גדול יותר</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>קטן יותר</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>הצגת סרגל הבקרה</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>סרגל מעל התמונה</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>סרגל מעל התמונה: כבוי, תמיד, בהזזת הסמן</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>סרגל מעל התמונה: כבוי</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>סרגל מעל התמונה: תמיד</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>סרגל מעל התמונה: בהזזת הסמן</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>רצועות…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>שמע וכתוביות בתפריט אחד</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>שמע</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>הסתרת סרגל הבקרה</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>התצוגה הבאה על המסך</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>התצוגה הקודמת על המסך</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>ניגון</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>השהיה</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>הרצה קדימה</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>הרצה אחורה</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>דילוג קדימה</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>דילוג אחורה</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>התחלה</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>סוף</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>הסרט הבא</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>הסרט הקודם</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>ללא חזרה</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>ללא חזרה</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>חזרה על אחד</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>חזרה על הכול</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>תיקון</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>הגברה</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>הנמכה</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>עוצמה רגילה</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>עוצמה מזערית</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>השתקה</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>המסך הבא</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>המסך הקודם</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>עוד…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>הרשימה המלאה: חיפוש, הזזה והסרה של סרטים</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>רשימת השמעה</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>סינון</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>ניגון</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>הזזה למעלה</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>הזזה למטה</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ מתוך %@ סרטים</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>העזרה של Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>פתיחת סרטים</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>חצי גודל, גודל רגיל וגודל כפול</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>התאמה למסך, לרוחבו, לגובהו</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>גדול יותר וקטן יותר</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>סרגל בקרה</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>תצוגה על המסך: זמן, סרט, כתוביות, חזרה, עוצמת שמע</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>ניגון, השהיה, חזרה למהירות רגילה</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>קדימה ואחורה: תמונה אחר תמונה בהשהיה, מהר יותר ויותר בניגון</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>דילוג קדימה ואחורה</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>תחילת הסרט וסופו</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>הסרט הבא והקודם</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>לחיצה כפולה</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>הלחצן האמצעי</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>לחצן אחורה</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>לחצן קדימה</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>גלגלת למעלה</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>גלגלת למטה</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>חזרה: כבוי, אחד, הכול</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>הגברה והנמכה</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>הכתוביות הבאות והקודמות</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>שמע מוקדם יותר</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>שמע מאוחר יותר</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>שמע כמו בקובץ</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>שמע מוקדם ומאוחר יותר</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>שמע בזמנים של הקובץ</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>השהיית שמע: ⁨%@⁩</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>הוספת כתוביות…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>הוספת כתוביות</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>הוספת קובץ כתוביות לסרט</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>אין ב”⁨%@⁩” כתוביות שניתן לקרוא</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>הוספה לסרט ככתוביות</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>הצגה מוקדמת יותר</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>הצגה מאוחרת יותר</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>כמו בקובץ</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>הצגת כתוביות מוקדם יותר</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>הצגת כתוביות מאוחר יותר</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>כתוביות בזמנים של הקובץ שלהן</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>כתוביות מוקדם ומאוחר יותר</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>כתוביות בזמנים של הקובץ שלהן</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>השורה הראשונה נאמרת עכשיו</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>השורה האחרונה נאמרת עכשיו</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>סנכרון לפי שתי שורות: מקש אחד כשנאמרת השורה הראשונה, והשני כשנאמרת האחרונה</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>כתב גדול יותר</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>כתב קטן יותר</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>כתוביות גדולות יותר</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>כתוביות קטנות יותר</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>כתוביות גדולות וקטנות יותר</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>גבוה יותר</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>נמוך יותר</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>כתוביות גבוה יותר</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>כתוביות נמוך יותר</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>כתוביות גבוה ונמוך יותר</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>השהיית כתוביות: ⁨%@⁩</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>גודל כתוביות: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>גובה כתוביות: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>לא ניתן לסנכרן את השורות: הן היו מהירות או איטיות יותר מפי שניים</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>תיקון כתוביות פגומות</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>המסך הבא והקודם</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>מערבי (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>מערבי (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>מערבי (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>מערבי (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>מערבי (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>מערבי (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>לטיני-אמריקני (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>מרכז אירופי (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>מרכז אירופי (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>מרכז אירופי (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>מרכז אירופי (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>מערבי (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>מרכז אירופי (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>נורדי (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>איסלנדי (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>נורדי (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>בלטי (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>בלטי (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>בלטי (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>קלטי (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>קירילי (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>קירילי (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>קירילי (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>אוקראיני (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>קירילי (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>קירילי (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>רוסי (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>יווני (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>יווני (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>יווני (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>יווני (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>יווני (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>טורקי (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>טורקי (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>טורקי (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>טורקי (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>עברי (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>עברי (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>עברי (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>ערבי (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>ערבי (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>ערבי (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>פורטוגלי (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>צרפתי קנדי (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>תאי (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>תאי (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>וייטנאמי (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>יפני (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>יפני (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>יפני (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>יפני (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>יפני (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>יפני (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>סיני (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>סיני מפושט (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>סיני מפושט (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>סיני מפושט (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>סיני מפושט (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>סיני (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>סיני מסורתי (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>סיני מסורתי (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>סיני מסורתי (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>סיני מסורתי (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>קוריאני (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>קוריאני (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>קוריאני (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>כתב</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>צב&amp;ע:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>צבע האותיות והקו שסביב הלוח</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>גופ&amp;ן:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>משפחת הגופן של האותיות</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;גודל:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>בנקודות של מסך שגובהו 1080 נקודות; במסך גבוה יותר האותיות גדלות איתו</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>צל</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>ציו&amp;ר צל</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>צל שומר על אותיות קריאות מעל כל תמונה</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>צ&amp;בע:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>צבע הצל, וכמה רואים דרכו</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>ט&amp;שטוש:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>עד כמה שולי הצל נמרחים, בנקודות</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>ימי&amp;נה:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>עד כמה הצל נופל ימינה, בנקודות; מתחת ל־0 שמאלה</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>ל&amp;מעלה:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>עד כמה הצל נופל למעלה, בנקודות; מתחת ל־0 למטה</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>מיקום</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>אנ&amp;כי:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>באיזה גובה זה מופיע</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>או&amp;פקי:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>באיזה צד של המסך זה מופיע</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>שמאל</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>מרכז</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>ימין</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>למעלה</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>אמצע</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>למטה</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>בתוך התמונה</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>על שולי התמונה</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>מתחת לתמונה</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>לוח</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>רקע</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>הצבע שסביב התמונה</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>ציור לו&amp;ח</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>לוח מאחורי הכתב</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>&amp;צבע:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>צבע הלוח, וכמה רואים דרכו</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>פינו&amp;ת מעוגלות</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>פינות הלוח מעוגלות</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>ר&amp;דיוס:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>עד כמה הפינות מעוגלות, בנקודות</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>ציור מ&amp;סגרת</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>קו סביב הלוח, בצבע הכתב</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>עוב&amp;י:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>עובי הקו, בנקודות</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>עמעום ואטימות</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>ה&amp;ופעה:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>כמה זמן נמשכת הופעה מלאה; 0 מציג מיד</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>היע&amp;למות:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>כמה זמן נמשכת היעלמות מלאה; 0 מסתיר מיד</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>ש&amp;הייה:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>כמה זמן נשאר בין ההופעה להיעלמות</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>א&amp;טימות בהסתרה:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>כמה ממנו נשאר כשהוא מוסתר: 0 % פירושו כלום</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;אטימות בהצגה:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>עד כמה הוא אטום כשהוא מוצג: מתחת ל־100 % רואים את התמונה דרכו</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>שחזור ברירת המחדל</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>מחזיר את הסגנון למה שהיה בתחילה</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>ביטול השחזור</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>מחזיר את הסגנון למה שהיה קודם</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ שנ׳</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>דוגמה</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>איך זה נראה מעל הסרט, או מעל תמונה בהירה ותמונה כהה</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>איזה ערב נפלא!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>עוצמת שמע: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>העדפות</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;סרט</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>בהפעלה ללא קובץ</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;לא לפתוח דבר</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>‏Lumaro מתחיל עם מסך ריק</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>פתיחת רשימת &amp;ההשמעה האחרונה</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>הסרטים של הפעם הקודמת חוזרים, במקום שבו נעזבו</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>לשאול &amp;על קבצים</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>‏Lumaro מתחיל עם החלון שפותח סרטים</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>תמונה</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>ג&amp;ודל:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>באיזה גודל סרטים מוצגים, מעכשיו ובהפעלה הבאה</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>הגדלה מותאמת אישית</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>&amp;חלון:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>האם הסרט נשאר מעל חלונות של תוכנות אחרות כל עוד המקלדת אצל Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>סר&amp;גל מעל התמונה:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>כשאין סרגל מתחתיה: סרגל גדול יותר שבא עם הסמן או נשאר</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>תמיד</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>בהזזת הסמן</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>בין חלונות אחרים</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>מעל חלונות אחרים</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>ה&amp;צגת סרגל הבקרה</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>הסרגל עם ניגון, זמן ועוצמת שמע מתחת לתמונה</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>קביעת &amp;בהירות המסך:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>כל עוד Lumaro פועל; אחר כך המסך חוזר לבהירותו הקודמת</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>בהירות המסך כל עוד Lumaro פועל</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>בהירות המסך</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>&amp;תמונה</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;ניגודיות:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;בהירות:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;גמא:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>ר&amp;וויה:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>גוו&amp;ן:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>כל הסרטים מוצגים כך, והסרט שעל המסך מיד</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>לא ניתן לקבוע את הבהירות של המסך הזה</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>ניגון</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>אורך &amp;דילוג:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>בכמה שניות דילוג מתקדם או חוזר</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>שניות</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>שמ&amp;ירת עוצמת השמע להפעלה הבאה</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>‏Lumaro מתחיל בעוצמה שבה הסתיים</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>כשתוכנה אחרת משתמשת במקלדת</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>השהיית הסר&amp;ט</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>הוא ממשיך כשחוזרים</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>הסתרת החלו&amp;ן</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>החלון ממוזער וחוזר עם Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>המשך מהמקום שבו הסרט &amp;נעזב</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>המיקומים והכתוביות של אלף הסרטים האחרונים נשמרים, והתפריט ”נפתחו לאחרונה” מציג אותם</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;רשימת השמעה</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>סדר</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>ל&amp;פי ההוספה</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>הסרטים מתנגנים בסדר שבו ניתנו</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>מע&amp;ורבב</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>הסרטים מתנגנים בסדר אקראי</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>ממו&amp;ין</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>הסרטים מתנגנים לפי שמותיהם</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>השוואת מספרים לפי &amp;ערכם</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>חלק 2 בא לפני חלק 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>לפי ה&amp;נתיב המלא</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>תיקיות נשארות יחד</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>לפי שם הקובץ &amp;בלבד</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>בכל תיקייה שבה נמצאים הסרטים</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>&amp;חזרה:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>על מה חוזרים, מעכשיו וברשימות השמעה חדשות</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>להתחיל לנ&amp;גן את מה שנפתח</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>אחרת הסרטים מוצגים וממתינים</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>להמשיך לסרט &amp;הבא</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>כשסרט מסתיים, מתנגן הבא ברשימה</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;לצאת בסוף הרשימה</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>אלא אם חוזרים עליה</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;כתוביות</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>הצגה</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>ה&amp;צגת כתוביות</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>גם בסרטים שייפתחו בהמשך</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>&amp;יישום עיצוב</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>כתב נטוי, צבעים ומיקומים בקובצי כתוביות פועלים; אחרת הם מושמטים</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;חיפוש קובצי כתוביות לצד סרטים</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>בפתיחת סרט</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>קבצים</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>קי&amp;דוד:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>איך שמורות האותיות בקובצי כתוביות; ”אוטומטי” מזהה זאת לפי הקובץ</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>קידוד של קובצי כתוביות</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>קצ&amp;ב תמונות:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>לקובצי כתוביות שסופרים תמונות במקום שניות</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>כמו הסרט</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>תיקון קובצי כתוביות &amp;פגומים</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>מה שפגום נקרא עד כמה שאפשר</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>שפות מועדפות</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>שפות מועדפות</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>סרטים מתחילים עם כתוביות בשפה הראשונה מאלה שיש. בתחילה אלה השפות של המערכת שלך.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>הוספת שפה</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>מוסיף שפה לרשימה</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>ה&amp;עלאה</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>מעביר את השפה למעלה ברשימה</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>ה&amp;ורדה</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>מעביר את השפה למטה ברשימה</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>&amp;הסרה</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>מסיר את השפה מהרשימה</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;שכבות־על</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;גודל כתב מזערי:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>אין מעל הסרט כתב קטן יותר</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>מר&amp;חק מהשוליים:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>עד כמה מה שמוצג מעל הסרט מתרחק משולי החלון</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>ה&amp;צגת משוב</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>פקודות אומרות מה עשו</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>שמירת &amp;התצוגה על המסך להפעלה הבאה</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>התצוגה על המסך שנבחרה אחרונה מוצגת שוב</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>איך נראים הכתב שמעל הסרט והחלון</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>סגנונות של שכבות־על</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>איך נראות הכתוביות</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>סגנונות של כתוביות</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;מתקדם</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>סמן</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;הסתרה אחרי:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>כמה זמן הסמן נח עד שהוא מוסתר</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>גרסאות חדשות</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>החבילות של המערכת שלך שומרות על Lumaro מעודכן.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;חיפוש גרסאות חדשות</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>בהפעלת Lumaro, בתדירות שנקבעה למטה</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>&amp;גם גרסאות בטא</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>גרסאות שעדיין נבדקות</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>ת&amp;דירות:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>כמה זמן עובר בין שתי בדיקות</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>בכל הפעלה</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>מדי יום</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>מדי שבוע</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>כל 30 יום</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>בדיקה אחרונה:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>תוצאה:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;בדיקה עכשיו</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>מחפש מיד גרסה חדשה</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>אבחון</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>שלט רחוק</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>תגובה &amp;לשלטי אינפרא־אדום</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>הלחצנים שלהם שייכים לנגן בלבד כל עוד הוא פועל</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>ר&amp;ישום של מה שקורה</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>שורות למי שמחפש שגיאה, ביומן המערכת או במסוף</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;איפוס העמוד</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>מחזיר את ההגדרות בעמוד הזה למה שהיו בתחילה. לסגנונות יש לחצן משלהם.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>ביטול האיפוס</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>מחזיר את ההגדרות של העמוד הזה (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>חיפוש הגדרה</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>מוצא הגדרה לפי מילותיה (Ctrl+F). החצים למעלה ולמטה עוברים לאחרות, Enter להגדרה עצמה.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d מתוך %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>לא נמצא דבר</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>קידודים נוספים</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d שנ׳</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d נק׳</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>חיפוש: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>הקלידו כדי לחפש</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>שינוי ההעדפות</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>משוב</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>טקסט</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>תמונות סיביות</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>תצוגה על המסך</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>חלון</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>לא ניתן לשמור את ההעדפות.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>מה שמשנים פועל עד היציאה מ־Lumaro. לא ניתן לכתוב את הקובץ ”⁨%@⁩”.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>ההעדפות פגומות.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>‏Lumaro מתחיל עם העדפות חדשות. הקובץ הפגום נשמר בשם ”⁨%@⁩”.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>לא ניתן לקרוא את ההעדפות.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>הקובץ ”⁨%@⁩” נשאר כמו שהוא. מה שמשנים פועל עד היציאה מ־Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>המיקומים השמורים בסרטים פגומים; הקובץ שלהם הונח בצד.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>לא ניתן לקרוא את המיקומים השמורים בסרטים.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>גרסה מאוחרת יותר של Lumaro שמרה כאן מיקומים בסרטים; הגרסה הזו אינה יכולה להשתמש בהם.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>מקשי &amp;קיצור</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;חיפוש:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>מילים של פקודה, או המקש שלה</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>הפקודות לפי תפריט; המודגשות הן בעלות מקשים משלך</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>פקודות והמקשים שלהן</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>פקודה</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>מקשים</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>מקשי הפקו&amp;דה:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>המקשים של הפקודה המסומנת</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>ה&amp;וספת מקש…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>לאחר מכן לחצו על המקש, עם Ctrl,‏ Alt,‏ Shift או Super אם תרצו</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>&amp;הסרת מקש</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>למקש המסומן אין עוד משמעות</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>אי&amp;פוס</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>הפקודה מקבלת בחזרה את המקשים ש־Lumaro הגיע איתם</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>א&amp;יפוס הכול</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>כל הפקודות מקבלות בחזרה את המקשים ש־Lumaro הגיע איתם</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>בי&amp;טול שינוי</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>מבטל את השינוי האחרון של מקש</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>העברה &amp;לפקודה זו</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>מעכשיו המקש מפעיל את הפקודה המסומנת</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;ביטול</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>המקש שומר על משמעותו</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>לחצו על מקש עבור ”⁨%@⁩”. Esc חוזר אחורה.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>‏Lumaro אינו מכיר את המקש הזה.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>‏Esc סוגר חלונות ומסיים את Lumaro; לא ניתן לשנות זאת.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>⁨%@⁩ שייך לשולחן העבודה.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>⁨%@⁩ כבר מפעיל את ”⁨%@⁩”.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>ל”⁨%@⁩” אין מקום לעוד מקשים; הסירו קודם אחד.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>⁨%@⁩ מפעיל עכשיו את ”⁨%@⁩”.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>מצב החזרה הבא</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>מצב החזרה הקודם</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>הצגת רשימת ההשמעה</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>הכתוביות הבאות</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>הכתוביות הקודמות</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>ללא כתוביות</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>פתחו סרט מהתפריט</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>או גררו קבצים לכאן.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>מקשי הפקודה</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>&amp;פתיחת דפים של אתרי וידאו באמצעות yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>על כתובת שאינה סרט נשאלת התוכנה yt-dlp, אם היא מותקנת</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>פתיחת סרטים</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>פתיחת תיקייה</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>פתיחת תיקייה…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>סרטים ושמע</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>כל הקבצים</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>הוספה לרשימת ההשמעה</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>פתיחת תיקיות של סרטים</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>פתיחת כתובת אחת או יותר</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>פתיחת כתובת URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>פתיחת כתובות URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;כתובת או נתיב של סרט:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;כתובות או נתיבים של סרטים, אחד בכל שורה:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>כתובת</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>כתובות</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;הוספה לרשימת ההשמעה</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>מה שמתנגן עכשיו ממשיך; החזקת Alt עושה אותו דבר</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>החלפת רשימת ההשמעה</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>הוספה לרשימת ההשמעה</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>זה קובץ כתוביות. כתוביות מוצגות מעצמן כשהן נמצאות לצד הסרט ושמן מתחיל בשמו.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>זו אינה כתובת ואינה נתיב של קובץ.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>המשך מ־%@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>מהירות</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>מהירות: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>⁦%@×⁩</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>לאט יותר</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>מהר יותר</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>חצי מהירות</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>מהירות כפולה</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>מהירות מקורית</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>לאט ומהר יותר, באותו גובה צליל; חצי מהירות ומהירות כפולה</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>במהירות שבה נוצר הסרט</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>פרקים</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>אין פרקים</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>פרק %d מתוך %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>פרק %d מתוך %d: ⁨%@⁩</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>הפרק הבא</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>הפרק הקודם</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>הפרק הבא והקודם</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>שמירת צילום מסך</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>שמירת התמונה כקובץ</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>צילום מסך: ⁨%@⁩</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>אין תמונה לשמירה</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>לא ניתן לשמור את צילום המסך ב־⁨%@⁩</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>מעבר לזמן</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>מעבר לזמן…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>מעבר לזמן מסוים</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>זמן בסרט:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>זמן בסרט, עד %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>שניות, דקות או שעות: 90,‏ 1:30 או 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>זמן: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>חזרה על קטע</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>חזרה מכאן</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>חזרה עד כאן</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>חזרה על קטע: תחילתו, סופו, ביטול</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>חזרה על קטע: כבוי</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>חזרה מ־%@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>חזרה: ⁦%@ – %@⁩</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>יחס גובה־רוחב</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>יחס גובה־רוחב הבא</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>יחס גובה־רוחב: אוטומטי, 4:3,‏ 16:9,‏ 2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>יחס גובה־רוחב: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>ביטול שזירה</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>מצב ביטול השזירה הבא</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>ביטול שזירה: אוטומטי, פועל, כבוי</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>ביטול שזירה: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>צבעי התמונה</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>פחות ניגודיות</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>יותר ניגודיות</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>כהה יותר</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>בהיר יותר</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>פחות גמא</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>יותר גמא</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>פחות רוויה</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>יותר רוויה</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>גוון לכיוון אדום</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>גוון לכיוון ירוק</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>ניגודיות, בהירות, גמא, רוויה, גוון: פחות ויותר</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>הצבעים כפי שהם בסרט</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>צבעים מקוריים</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>ניגודיות: ⁨%@⁩</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>בהירות: ⁨%@⁩</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>גמא: ⁨%@⁩</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>רוויה: ⁨%@⁩</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>גוון: ⁨%@⁩</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>חיתוך פסים שחורים</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>חיתוך פסים שחורים</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>חיתוך: פועל</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>חיתוך: כבוי</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>אין פסים שחורים</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>סיבוב ב־90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>סיבוב התמונה ושיקופה</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>סובב ב־%d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>שיקוף</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>שיקוף: פועל</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>שיקוף: כבוי</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>רצועות שמע</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>שמע: ⁨%@⁩</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>רצועת השמע הבאה</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>רצועת השמע הקודמת</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>רצועת השמע הבאה והקודמת</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>מונו</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>סטריאו</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d ערוצים</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>רצועה %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>כפויות</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>כתוביות שניות</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>הכתוביות השניות הבאות</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>כתוביות שניות: ⁨%@⁩</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>כתוביות שניות למעלה: הרצועה הבאה, ללא</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>ככתוביות שניות אפשר להציג רק טקסט, ואף רצועה אינה מוצגת פעמיים</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>איכות</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>איכות: ⁨%@⁩</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>האיכות הבאה</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>האיכות הבאה של הזרם</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>איכות אחת בלבד</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>מעבר לשידור החי</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>מעבר למה שמשודר כעת</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>זה לא שידור חי</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>שידור חי</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>פיגור אחרי השידור החי</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>מתחבר מחדש…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>החיבור אבד</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>מידע</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>הצגה או הסתרה של המידע על הסרט</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>אין סרט</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>מכל</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>משך</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>גודל קובץ</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>קצב סיביות</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>שמע</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>רצועות</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>תמונות</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>חוצץ</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>מקודד</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>מפענח</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>תוכנה</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>חומרה (⁨%@⁩)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>גודל</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>⁨%@⁩, מוצג בגודל ⁨%@⁩</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>קצב תמונות</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ לשנייה</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>⁨%@⁩ לשנייה, עכשיו ⁨%@⁩</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>טווח דינמי</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>רגיל</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>צבע</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>ערוצים</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>קצב דגימה</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>פלט</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>⁨%@⁩ (מתנגן)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>כתוביות שהוצגו</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>הוצגו</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>באיחור</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>הושמטו</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>מוכן</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ שנ׳</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>קצב מילוי</translation>
    </message>
</context>
</TS>
