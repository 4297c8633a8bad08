<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>لا يمكن فتح «⁨%@⁩».</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>الملف غير موجود أو تالف أو من نوع لا يعرفه Lumaro (خطأ %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>قد لا يعمل «⁨%@⁩» كما ينبغي.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>لا يمكن فك ترميز أجزاء من الفيلم (خطأ %d). اختر «متابعة» للمحاولة على أي حال.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>لا يوجد شيء لتشغيله.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>لا يوجد بين الملفات المحددة فيلم يستطيع Lumaro تشغيله. يمكنك اختيار ملفات أخرى.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>الملف فارغ.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>هذا مجلد أو جهاز وليس ملفًا.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>ليس لديك إذن بقراءة الملف.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>هذا ليس فيلمًا يستطيع Lumaro تشغيله.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>لم يصل رد في الوقت المحدد.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>المكتبات التي تفتح الأفلام غير موجودة.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>لا يعرف Lumaro هذا النوع من العناوين.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>لا يوجد خادم بهذا الاسم، أو لا يوجد اتصال بالشبكة.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>لا يمكن الوصول إلى الخادم.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>رفض الخادم الاتصال.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>انقطع الاتصال بالخادم.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>لا يرسل الخادم الملفات إلا من بدايتها، وما يلزم أولًا موجود في نهاية هذا الفيلم. نزّل الفيلم لتشغيله.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>يطلب الخادم اسمًا وكلمة مرور (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>لا يسمح الخادم بذلك (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>لا يوجد ملف كهذا على الخادم (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>رفض الخادم الطلب.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>أجاب الخادم بخطأ داخلي.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>لا يوجد أي فيلم في هذا المجلد.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>الملف ليس قائمة تشغيل.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>لا توجد أفلام في قائمة التشغيل.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>قائمة التشغيل أكبر من 32 م.ب.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>قائمة التشغيل طويلة جدًا. فُتحت أول 100,000 مدخلة منها فقط.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>قوائم تشغيل كثيرة جدًا يشير بعضها إلى بعض. تُركت هذه القائمة.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>تُركت المدخلات الموجودة على أقراص Windows‏ (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>قائمة التشغيل آتية من الشبكة. تُركت المدخلات التي تشير إلى ملفات هذا الحاسوب (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>تُركت المدخلات التي لا تشير إلى ملف ولا إلى عنوان (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>مجلدات لا يُسمح بقراءتها (⁨%@⁩): ⁨%@⁩.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>تعذّر البحث في كل شيء.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… و%@ أخرى.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>«⁨%@⁩»: ⁨%@⁩ (⁨%@⁩)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>الملفات التي لا يمكن فتحها: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>الأفلام التي قد لا تعمل كما ينبغي: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>لا يوجد فيلم يستطيع Lumaro تشغيله في:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>تخزين مؤقت: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>توقّف: لا بيانات من الخادم</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>تحميل: ⁨%@⁩</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>استؤنف عند %@
%@: من البداية</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>البحث عن أفلام: ⁨%@⁩</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>عُثر على %@ ملف…</numerusform>
            <numerusform>عُثر على %@ ملف…</numerusform>
            <numerusform>عُثر على %@ ملفين…</numerusform>
            <numerusform>عُثر على %@ ملفات…</numerusform>
            <numerusform>عُثر على %@ ملفًا…</numerusform>
            <numerusform>عُثر على %@ ملف…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>فتح…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>المفتوحة حديثًا</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>مسح القائمة ونسيان المواضع</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>هل تريد البحث عن إصدارات جديدة؟</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>يستطيع Lumaro أن يتحقق من حين إلى آخر من وجود إصدار أحدث. لا يُرسَل أي شيء عنك أو عن أفلامك. يمكنك تغيير هذا في التفضيلات.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>فشل البحث عن إصدار جديد.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>تعذّر الوصول إلى أي من المواقع. تحقق من الاتصال بالإنترنت أو حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>إصدار Lumaro هو الأحدث.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>لديك أحدث إصدار.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>يتوفر إصدار أحدث من Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>يمكن الآن تنزيل الإصدار (%@) %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>تنزيل &amp;الآن…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;تخطي هذا الإصدار</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>هل يعجبك Lumaro؟</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>برنامج Lumaro مجاني. التبرع يساعد على استمراره.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>تبرّع…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>أحدث إصدار</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>يتوفر إصدار أحدث (%@): %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>تعذّر الوصول إلى كل المواقع المرآة</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>مستقر</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>تجريبي</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>جارٍ التحقق…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>تشغيل</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>البداية</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>النهاية</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>تقديم سريع ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>ترجيع سريع ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>تقدّم %d ث</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>رجوع %d ث</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>الإطار التالي</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>الإطار السابق</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>التالي: ⁨%@⁩</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>السابق: ⁨%@⁩</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>الشاشة التالية</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>الشاشة السابقة</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>سكون</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>إعادة تشغيل الحاسوب</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>إيقاف تشغيل الحاسوب</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>فشلت إعادة التشغيل: ⁨%@⁩</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>فشل إيقاف التشغيل: ⁨%@⁩</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>فشل تسجيل الخروج: ⁨%@⁩</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>مسافة</translation>
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
        <translation>وسائط: تشغيل</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>وسائط: إيقاف</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>وسائط: التالي</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>وسائط: السابق</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>وسائط: رفع الصوت</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>وسائط: خفض الصوت</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>وسائط: كتم الصوت</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>فشل السكون: ⁨%@⁩</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>الحجم: نصف</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>الحجم: عادي</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>الحجم: مضاعف</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>الحجم: ملء الشاشة</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>الحجم: ملاءمة العرض</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>الحجم: ملاءمة الارتفاع</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>الحجم: أكبر</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>الحجم: أصغر</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>شريط التحكم: يعمل</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>شريط التحكم: متوقف</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>مستوى الصوت: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>كتم الصوت: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>الصوت مكتوم</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>يعمل</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>متوقف</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>الوقت: ⁦%@ / %@⁩</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>الفيلم: ⁨%@⁩</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>التكرار: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>واحد</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>الترجمة: ⁨%@⁩</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>الإصلاح: يعمل</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>الإصلاح: متوقف</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>لا يمكن قراءة %d سطر منه.</numerusform>
            <numerusform>لا يمكن قراءة %d سطر منه.</numerusform>
            <numerusform>لا يمكن قراءة %d سطرين منه.</numerusform>
            <numerusform>لا يمكن قراءة %d أسطر منه.</numerusform>
            <numerusform>لا يمكن قراءة %d سطرًا منه.</numerusform>
            <numerusform>لا يمكن قراءة %d سطر منه.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>لا يمكن قراءة %d صورة منه.</numerusform>
            <numerusform>لا يمكن قراءة %d صورة منه.</numerusform>
            <numerusform>لا يمكن قراءة %d صورتين منه.</numerusform>
            <numerusform>لا يمكن قراءة %d صور منه.</numerusform>
            <numerusform>لا يمكن قراءة %d صورة منه.</numerusform>
            <numerusform>لا يمكن قراءة %d صورة منه.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>قد يفيد «إصلاح» (قائمة الترجمة).</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>النمط</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>اضغط ⁨%@⁩ لفتح فيلم</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>أو أفلت الملفات هنا. يعرض ⁨%@⁩ كل المفاتيح.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>فيلم</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>التشغيل</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>قائمة التشغيل</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>الترجمة</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>نافذة</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>اكتب ما تبحث عنه. كل أمر موجود أيضًا في القائمة: عند الحافة العلوية للشاشة أو تحت زر الفأرة الأيمن.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>ماذا تريد أن تفعل؟</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>لا يوجد أمر يحتوي على هذه الكلمات.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>المشاهدة والتنقل في الفيلم</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>رفع الصوت وخفضه وكتمه</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>متابعة الترجمة</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>تكبير الصورة ومعرفة ما يُعرض</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>الاختيار بين الأفلام</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>الانتقال إلى شاشة أخرى</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>الفتح والإعداد والإنهاء</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>الحصول على مساعدة</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>فتح عنوان URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>فتح عدة عناوين URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>حفظ قائمة التشغيل…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>حفظ قائمة التشغيل</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>قائمة تشغيل</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>حفظ قائمة التشغيل في ملف</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>لا يمكن حفظ «⁨%@⁩».</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>ليس لديك إذن بالكتابة هناك.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>لا يمكن الكتابة على القرص.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>القرص ممتلئ.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>هذا مجلد.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>التفضيلات…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>عن Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>البحث عن إصدار جديد…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>نصف الحجم</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>الحجم العادي</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>ضعف الحجم</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>ملاءمة الشاشة</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>ملاءمة العرض</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>ملاءمة الارتفاع</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>أكبر</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>أصغر</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>إظهار شريط التحكم</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>الشريط فوق الصورة</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>الشريط فوق الصورة: متوقف، دائمًا، عند تحريك المؤشر</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>الشريط فوق الصورة: متوقف</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>الشريط فوق الصورة: دائمًا</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>الشريط فوق الصورة: عند تحريك المؤشر</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>المسارات…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>الصوت والترجمة في قائمة واحدة</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>الصوت</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>إخفاء شريط التحكم</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>العرض التالي على الشاشة</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>العرض السابق على الشاشة</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>تقديم سريع</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>ترجيع سريع</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>قفز إلى الأمام</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>قفز إلى الخلف</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>البداية</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>النهاية</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>الفيلم التالي</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>الفيلم السابق</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>بلا تكرار</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>بلا تكرار</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>تكرار فيلم واحد</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>تكرار الكل</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>إصلاح</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>رفع الصوت</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>خفض الصوت</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>مستوى الصوت العادي</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>أدنى مستوى للصوت</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>كتم الصوت</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>الشاشة التالية</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>الشاشة السابقة</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>المزيد…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>القائمة كاملة: البحث عن الأفلام ونقلها وإزالتها</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>قائمة التشغيل</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>تصفية</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>نقل إلى أعلى</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>نقل إلى أسفل</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ من %@ من الأفلام</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>مساعدة Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>فتح أفلام</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>نصف الحجم والحجم العادي وضعف الحجم</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>ملاءمة الشاشة أو عرضها أو ارتفاعها</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>أكبر وأصغر</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>شريط التحكم</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>العرض على الشاشة: الوقت والفيلم والترجمة والتكرار ومستوى الصوت</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>تشغيل وإيقاف مؤقت والعودة إلى السرعة العادية</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>إلى الأمام والخلف: إطارًا إطارًا أثناء الإيقاف المؤقت، وأسرع فأسرع أثناء التشغيل</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>القفز إلى الأمام والخلف</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>بداية الفيلم ونهايته</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>الفيلم التالي والسابق</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>نقر مزدوج</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>الزر الأوسط</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>زر الرجوع</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>زر التقدم</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>العجلة إلى أعلى</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>العجلة إلى أسفل</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>التكرار: متوقف، واحد، الكل</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>رفع الصوت وخفضه</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>الترجمة التالية والسابقة</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>تقديم الصوت</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>تأخير الصوت</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>الصوت كما في الملف</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>تقديم الصوت وتأخيره</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>الصوت في أوقات الملف</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>تأخير الصوت: ⁨%@⁩</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>إضافة ترجمة…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>إضافة ترجمة</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>إضافة ملف ترجمة إلى الفيلم</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>لا يحتوي «⁨%@⁩» على ترجمة يمكن قراءتها</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>إضافة إلى الفيلم كترجمة</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>إظهار أبكر</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>إظهار لاحق</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>كما في الملف</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>تقديم الترجمة</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>تأخير الترجمة</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>الترجمة في أوقات ملفها</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>تقديم الترجمة وتأخيرها</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>الترجمة في أوقات ملفها</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>السطر الأول يُقال الآن</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>السطر الأخير يُقال الآن</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>المزامنة بسطرين: اضغط أحدهما عندما يُقال السطر الأول، والآخر عندما يُقال الأخير</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>نص أكبر</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>نص أصغر</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>تكبير الترجمة</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>تصغير الترجمة</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>تكبير الترجمة وتصغيرها</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>أعلى</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>أدنى</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>رفع الترجمة</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>خفض الترجمة</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>رفع الترجمة وخفضها</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>تأخير الترجمة: ⁨%@⁩</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>حجم الترجمة: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>ارتفاع الترجمة: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>لا يمكن مزامنة الأسطر: ستكون أسرع أو أبطأ من الضعف</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>إصلاح الترجمة التالفة</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>الشاشة التالية والسابقة</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>غربي (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>غربي (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>غربي (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>غربي (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>غربي (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>غربي (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>لاتيني-أمريكي (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>أوروبا الوسطى (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>أوروبا الوسطى (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>أوروبا الوسطى (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>أوروبا الوسطى (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>غربي (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>أوروبا الوسطى (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>اسكندنافي (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>آيسلندي (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>اسكندنافي (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>بلطيقي (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>بلطيقي (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>بلطيقي (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>كلتي (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>سيريلي (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>سيريلي (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>سيريلي (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>أوكراني (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>سيريلي (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>سيريلي (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>روسي (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>يوناني (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>يوناني (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>يوناني (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>يوناني (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>يوناني (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>تركي (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>تركي (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>تركي (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>تركي (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>عبري (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>عبري (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>عبري (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>عربي (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>عربي (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>عربي (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>برتغالي (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>فرنسي كندي (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>تايلندي (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>تايلندي (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>فيتنامي (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>ياباني (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>ياباني (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>ياباني (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>ياباني (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>ياباني (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>ياباني (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>صيني (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>صيني مبسّط (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>صيني مبسّط (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>صيني مبسّط (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>صيني مبسّط (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>صيني (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>صيني تقليدي (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>صيني تقليدي (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>صيني تقليدي (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>صيني تقليدي (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>كوري (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>كوري (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>كوري (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>الل&amp;ون:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>لون الحروف والخط المحيط باللوحة</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>الخ&amp;ط:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>عائلة خط الحروف</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>ال&amp;حجم:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>بنقاط شاشة ارتفاعها 1080 نقطة؛ وعلى شاشة أعلى تكبر الحروف معها</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>الظل</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>رسم &amp;ظل</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>الظل يُبقي الحروف مقروءة فوق أي صورة</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>اللو&amp;ن:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>لون الظل ومقدار ما يظهر من خلاله</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>ال&amp;تمويه:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>مدى انتشار حافة الظل، بالنقاط</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>إل&amp;ى اليمين:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>مدى انزياح الظل إلى اليمين، بالنقاط؛ تحت الصفر إلى اليسار</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>إلى &amp;أعلى:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>مدى انزياح الظل إلى أعلى، بالنقاط؛ تحت الصفر إلى أسفل</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>ع&amp;موديًا:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>الارتفاع الذي يظهر عنده</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>أ&amp;فقيًا:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>جانب الشاشة الذي يظهر عنده</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>وسط</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>أعلى</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>وسط</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>داخل الصورة</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>على حافة الصورة</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>تحت الصورة</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>اللوحة</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>اللون المحيط بالصورة</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>&amp;رسم لوحة</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>لوحة خلف النص</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>ا&amp;للون:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>لون اللوحة ومقدار ما يظهر من خلالها</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>&amp;زوايا مستديرة</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>زوايا اللوحة مستديرة</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>ن&amp;صف القطر:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>مدى استدارة الزوايا، بالنقاط</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>رسم &amp;إطار</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>خط حول اللوحة بلون النص</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>ال&amp;سماكة:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>سماكة الخط، بالنقاط</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>التلاشي والعتامة</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>الظ&amp;هور:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>مدة الظهور الكامل؛ 0 يُظهره فورًا</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>الا&amp;ختفاء:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>مدة الاختفاء الكامل؛ 0 يخفيه فورًا</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>ال&amp;بقاء:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>مدة البقاء بين الظهور والاختفاء</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>العتامة &amp;عند الإخفاء:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>ما يبقى منه وهو مخفي: 0 % لا شيء</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;العتامة عند الإظهار:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>مدى عتامته وهو ظاهر: تحت 100 % تظهر الصورة من خلاله</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>استعادة الافتراضي</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>يعيد هذا النمط إلى ما كان عليه في البداية</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>تراجع عن الاستعادة</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>يعيد النمط إلى ما كان عليه قبل ذلك</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ ث</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>نموذج</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>كيف يبدو فوق الفيلم، أو فوق صورة فاتحة وأخرى داكنة</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>يا لها من أمسية!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>مستوى الصوت: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>ال&amp;فيلم</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>عند البدء بلا ملف</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;عدم فتح شيء</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>يبدأ Lumaro بشاشة فارغة</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>فتح &amp;آخر قائمة تشغيل</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>تعود أفلام المرة السابقة عند الموضع الذي تُركت فيه</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>ال&amp;سؤال عن الملفات</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>يبدأ Lumaro بلوحة فتح الأفلام</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>الصورة</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>الح&amp;جم:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>حجم عرض الأفلام، من الآن وعند البدء التالي</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>تكبير مخصص</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>ال&amp;نافذة:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>هل يبقى الفيلم فوق نوافذ البرامج الأخرى ما دامت لوحة المفاتيح مع Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>الش&amp;ريط فوق الصورة:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>حيث لا شريط تحتها: شريط أكبر يأتي مع المؤشر أو يبقى</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>دائمًا</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>عند تحريك المؤشر</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>بين النوافذ الأخرى</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>فوق النوافذ الأخرى</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>إظهار &amp;شريط التحكم</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>الشريط الذي فيه التشغيل والوقت ومستوى الصوت تحت الصورة</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>&amp;ضبط سطوع الشاشة:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>ما دام Lumaro يعمل؛ ثم يعود سطوع الشاشة كما كان</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>سطوع الشاشة أثناء عمل Lumaro</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>سطوع الشاشة</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>الص&amp;ورة</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>الت&amp;باين:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>ال&amp;سطوع:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;غاما:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>الت&amp;شبّع:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>ال&amp;صبغة:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>تُعرض به كل الأفلام، والفيلم المعروض على الشاشة فورًا</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>لا يمكن ضبط سطوع هذه الشاشة</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>التشغيل</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>مق&amp;دار القفز:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>عدد الثواني التي يتقدمها القفز أو يرجعها</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>ثانية</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>الاحتفاظ &amp;بمستوى الصوت للبدء التالي</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>يبدأ Lumaro بمستوى الصوت الذي انتهى به</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>عندما يستخدم برنامج آخر لوحة المفاتيح</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>إ&amp;يقاف الفيلم مؤقتًا</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>يستمر عند عودتك</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>إ&amp;خفاء النافذة</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>تُصغَّر النافذة وتعود مع Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>المتابعة من &amp;حيث تُرك الفيلم</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>تُحفظ مواضع آخر ألف فيلم وترجماتها، وتعرضها قائمة «المفتوحة حديثًا»</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;قائمة التشغيل</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>الترتيب</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>كما &amp;أُضيفت</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>تُشغَّل الأفلام بالترتيب الذي أُعطيت به</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>ع&amp;شوائي</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>تُشغَّل الأفلام بترتيب عشوائي</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>مرتب&amp;ة</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>تُشغَّل الأفلام حسب أسمائها</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>مقا&amp;رنة الأعداد بقيمتها</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>يأتي الجزء 2 قبل الجزء 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>ح&amp;سب المسار الكامل</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>تبقى المجلدات مجتمعة</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>&amp;حسب اسم الملف فقط</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>أيًّا كانت المجلدات التي فيها الأفلام</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>الت&amp;كرار:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>ما يُكرَّر، من الآن وفي قوائم التشغيل الجديدة</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>بدء تشغيل ما &amp;يُفتح</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>وإلا تُعرض الأفلام وتنتظر</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>متا&amp;بعة الفيلم التالي</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>عندما ينتهي فيلم يُشغَّل التالي في القائمة</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>الإنهاء &amp;عند نهاية القائمة</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>ما لم تكن مكررة</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>ال&amp;ترجمة</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>العرض</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>إ&amp;ظهار الترجمة</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>وللأفلام التي تُفتح لاحقًا أيضًا</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>ت&amp;طبيق التنسيق</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>يُطبَّق الخط المائل والألوان والمواضع في ملفات الترجمة؛ وإلا تُترك</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>البحث عن ملفات الترجمة &amp;بجانب الأفلام</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>عند فتح فيلم</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>الت&amp;رميز:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>كيف خُزّنت حروف ملفات الترجمة؛ «تلقائي» يعرف ذلك من الملف</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>ترميز ملفات الترجمة</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>مع&amp;دل الإطارات:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>لملفات الترجمة التي تعدّ الإطارات بدل الثواني</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>كالفيلم</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>إ&amp;صلاح ملفات الترجمة التالفة</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>يُقرأ التالف بقدر ما يمكن</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>اللغات المفضلة</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>اللغات المفضلة</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>تبدأ الأفلام بترجمة أول لغة متوفرة من هذه اللغات. وهي في البداية لغات نظامك.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>إضافة لغة</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>يضيف لغة إلى القائمة</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>أ&amp;على</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>ينقل اللغة إلى أعلى القائمة</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>&amp;أدنى</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>ينقل اللغة إلى أسفل القائمة</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>إ&amp;زالة</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>يزيل اللغة من القائمة</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>ا&amp;لتراكبات</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;أصغر حجم للنص:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>لا يوجد نص فوق الفيلم أصغر منه</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>البعد &amp;عن الحواف:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>كم يبتعد ما يظهر فوق الفيلم عن حواف النافذة</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>إ&amp;ظهار الاستجابة</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>تُخبر الأوامر بما فعلته</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>الاحتفاظ &amp;بالعرض على الشاشة للبدء التالي</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>يظهر مجددًا آخر عرض على الشاشة اختير</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>كيف تبدو النصوص فوق الفيلم وتبدو النافذة</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>أنماط التراكبات</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>كيف تبدو الترجمة</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>أنماط الترجمة</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;متقدم</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>المؤشر</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>إ&amp;خفاء بعد:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>المدة التي يسكن فيها المؤشر قبل إخفائه</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>الإصدارات الجديدة</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>تُبقي حزم نظامك Lumaro محدّثًا.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>البحث &amp;عن إصدارات جديدة</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>عند بدء Lumaro، بقدر ما هو محدد أدناه</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>والإصدارات التجريبية &amp;أيضًا</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>إصدارات ما زالت قيد التجربة</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;كم مرة:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>الوقت الذي يمر بين عمليتي تحقق</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>عند كل بدء</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>يوميًا</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>أسبوعيًا</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>كل 30 يومًا</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>آخر تحقق:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>النتيجة:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>الت&amp;حقق الآن</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>يبحث فورًا عن إصدار جديد</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>التشخيص</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>جهاز التحكم عن بعد</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>الاستجابة لأجهزة التحكم &amp;بالأشعة تحت الحمراء</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>أزرارها للمشغل وحده ما دام يعمل</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>تسجيل ما &amp;يحدث</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>أسطر لمن يبحث عن خطأ، في سجل النظام أو الطرفية</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;إعادة ضبط الصفحة</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>يعيد إعدادات هذه الصفحة إلى ما كانت عليه في البداية. للأنماط زر خاص بها.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>تراجع عن إعادة الضبط</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>يستعيد إعدادات هذه الصفحة (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>البحث عن إعداد</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>يبحث عن إعداد بكلماته (Ctrl+F). السهمان الأعلى والأسفل ينتقلان إلى غيره، وEnter إلى الإعداد نفسه.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d من %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>ترميزات أخرى</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d ث</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d نقطة</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>بحث: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>اكتب للبحث</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>تغيير التفضيلات</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>الاستجابة</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>النصوص</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>الصور النقطية</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>العرض على الشاشة</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>النافذة</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>لا يمكن حفظ التفضيلات.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>ما تغيّره يسري حتى إنهاء Lumaro. لا يمكن كتابة الملف «⁨%@⁩».</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>التفضيلات تالفة.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>يبدأ Lumaro بتفضيلات جديدة. حُفظ الملف التالف باسم «⁨%@⁩».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>لا يمكن قراءة التفضيلات.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>يبقى الملف «⁨%@⁩» كما هو. ما تغيّره يسري حتى إنهاء Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>المواضع المحفوظة في الأفلام تالفة؛ وُضع ملفها جانبًا.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>لا يمكن قراءة المواضع المحفوظة في الأفلام.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>حفظ إصدار أحدث من Lumaro المواضع في الأفلام هنا؛ ولا يستطيع هذا الإصدار استخدامها.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;الاختصارات</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;بحث:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>كلمات الأمر أو مفتاحه</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>الأوامر حسب القوائم؛ ما له مفاتيح خاصة بك بخط عريض</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>الأوامر ومفاتيحها</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>الأمر</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>مفات&amp;يح الأمر:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>مفاتيح الأمر المحدد</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>إضاف&amp;ة مفتاح…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>ثم اضغط المفتاح، مع Ctrl أو Alt أو Shift أو Super إن شئت</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>إ&amp;زالة المفتاح</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>لا يعود للمفتاح المحدد أي معنى</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>إ&amp;عادة الضبط</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>يستعيد الأمر المفاتيح التي أتى بها Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>إعادة &amp;ضبط الكل</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>تستعيد كل الأوامر المفاتيح التي أتى بها Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>ت&amp;راجع</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>يتراجع عن آخر تغيير لمفتاح</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>&amp;نقل إلى هذا الأمر</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>يعني المفتاح الأمر المحدد من الآن فصاعدًا</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>يحتفظ المفتاح بمعناه</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>اضغط مفتاحًا من أجل «⁨%@⁩». يعود Esc إلى الخلف.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>لا يعرف Lumaro هذا المفتاح.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>يغلق Esc النوافذ وينهي Lumaro؛ ولا يمكن تغيير ذلك.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>المفتاح ⁨%@⁩ يخص سطح المكتب.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>المفتاح ⁨%@⁩ يعني «⁨%@⁩» بالفعل.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>لا يمكن أن تزيد مفاتيح «⁨%@⁩»؛ أزل أحدها أولًا.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>المفتاح ⁨%@⁩ يعني «⁨%@⁩» الآن.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>وضع التكرار التالي</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>وضع التكرار السابق</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>إظهار قائمة التشغيل</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>الترجمة التالية</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>الترجمة السابقة</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>بلا ترجمة</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>افتح فيلمًا من القائمة</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>أو أفلت الملفات هنا.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>مفاتيح الأمر</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>فتح &amp;صفحات مواقع الفيديو باستخدام yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>يُسأل برنامج yt-dlp، إن كان مثبتًا، عن كل عنوان ليس فيلمًا</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>فتح أفلام</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>فتح مجلد</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>فتح مجلد…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>الأفلام والصوت</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>كل الملفات</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>إضافة إلى قائمة التشغيل</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>فتح مجلدات أفلام</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>فتح عنوان أو عدة عناوين</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>فتح عنوان URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>فتح عدة عناوين URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;عنوان الفيلم أو مساره:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;عناوين الأفلام أو مساراتها، واحد في كل سطر:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>العناوين</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;إضافة إلى قائمة التشغيل</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>يستمر ما يُشغَّل الآن؛ والضغط المستمر على Alt يفعل الشيء نفسه</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>استبدال قائمة التشغيل</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>إضافة إلى قائمة التشغيل</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>هذا ملف ترجمة. تظهر الترجمة تلقائيًا إذا كانت بجانب فيلمها وبدأ اسمها باسمه.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>هذا ليس عنوانًا ولا مسار ملف.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>استؤنف عند %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>السرعة: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>⁦%@×⁩</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>أبطأ</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>أسرع</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>نصف السرعة</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>ضعف السرعة</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>السرعة الأصلية</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>أبطأ وأسرع مع ثبات طبقة الصوت؛ نصف السرعة وضعفها</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>بالسرعة التي صُنع بها الفيلم</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>الفصول</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>لا توجد فصول</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>الفصل %d من %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>الفصل %d من %d: ⁨%@⁩</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>الفصل التالي</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>الفصل السابق</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>الفصل التالي والسابق</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>حفظ لقطة</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>حفظ الصورة في ملف</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>اللقطة: ⁨%@⁩</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>لا توجد صورة لحفظها</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>لا يمكن حفظ اللقطة في ⁨%@⁩</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>الانتقال إلى وقت</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>الانتقال إلى وقت…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>الانتقال إلى وقت محدد</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>الوقت في الفيلم:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>الوقت في الفيلم، حتى %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>ثوانٍ أو دقائق أو ساعات: 90 أو 1:30 أو 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>الوقت: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>تكرار مقطع</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>التكرار من هنا</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>التكرار إلى هنا</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>تكرار مقطع: بدايته، نهايته، إلغاء</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>تكرار المقطع: متوقف</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>التكرار من %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>التكرار: ⁦%@ – %@⁩</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>نسبة العرض إلى الارتفاع</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>نسبة العرض إلى الارتفاع التالية</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>نسبة العرض إلى الارتفاع: تلقائي، 4:3، 16:9، 2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>نسبة العرض إلى الارتفاع: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>إزالة التشابك</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>وضع إزالة التشابك التالي</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>إزالة التشابك: تلقائي، يعمل، متوقف</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>إزالة التشابك: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>ألوان الصورة</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>تباين أقل</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>تباين أكثر</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>أغمق</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>أفتح</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>غاما أقل</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>غاما أكثر</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>تشبّع أقل</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>تشبّع أكثر</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>الصبغة نحو الأحمر</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>الصبغة نحو الأخضر</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>التباين والسطوع وغاما والتشبّع والصبغة: أقل وأكثر</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>الألوان كما هي في الفيلم</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>الألوان الأصلية</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>التباين: ⁨%@⁩</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>السطوع: ⁨%@⁩</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>غاما: ⁨%@⁩</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>التشبّع: ⁨%@⁩</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>الصبغة: ⁨%@⁩</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>قص الأشرطة السوداء</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>قص الأشرطة السوداء</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>القص: يعمل</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>القص: متوقف</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>لا توجد أشرطة سوداء</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>تدوير 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>تدوير الصورة وعكسها</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>دُوّرت %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>عكس</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>العكس: يعمل</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>العكس: متوقف</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>المسارات الصوتية</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>الصوت: ⁨%@⁩</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>المسار الصوتي التالي</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>المسار الصوتي السابق</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>المسار الصوتي التالي والسابق</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>أحادي</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>ستيريو</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>القنوات: %d</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>المسار %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>إجبارية</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>الترجمة الثانية</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>الترجمة الثانية التالية</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>الترجمة الثانية: ⁨%@⁩</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>الترجمة الثانية في الأعلى: المسار التالي، لا شيء</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>لا تظهر كترجمة ثانية إلا النصوص، ولا يظهر مسار مرتين</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>الجودة: ⁨%@⁩</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>الجودة التالية</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>الجودة التالية للبث</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>جودة واحدة فقط</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>الانتقال إلى البث المباشر</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>الانتقال إلى ما يُبث الآن مباشرة</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>ليس بثًا مباشرًا</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>مباشر</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>التأخر عن البث المباشر</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>جارٍ إعادة الاتصال…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>انقطع الاتصال</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>إظهار معلومات الفيلم أو إخفاؤها</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>لا يوجد فيلم</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>الحاوية</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>حجم الملف</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>معدل البت</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>المسارات</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>الإطارات</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>المخزن المؤقت</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>الترميز</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>فك الترميز</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>برمجي</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>عتادي (⁨%@⁩)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>⁨%@⁩، معروضة بحجم ⁨%@⁩</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>معدل الإطارات</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ في الثانية</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>⁨%@⁩ في الثانية، والآن ⁨%@⁩</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>النطاق الديناميكي</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>قياسي</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>اللون</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>معدل العينات</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>الخرج</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>⁨%@⁩ (قيد التشغيل)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>الترجمات المعروضة</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>المعروضة</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>المتأخرة</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>المتروكة</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ ث</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>الامتلاء</translation>
    </message>
</context>
</TS>
