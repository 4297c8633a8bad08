<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>“%@” açılamıyor.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Dosya yok, hasarlı veya Lumaro’nun bilmediği bir türde (hata %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>“%@” düzgün oynatılamayabilir.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Filmin bazı bölümlerinin kodu çözülemiyor (hata %d). Yine de denemek için “Devam Et” seçeneğini kullanın.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Oynatılacak bir şey yok.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Verilen dosyaların hiçbiri Lumaro’nun oynatabileceği bir film değil. Başka dosyalar seçebilirsiniz.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Dosya yok.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Dosya boş.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Bu bir dosya değil, klasör veya aygıt.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Dosyayı okuma izniniz yok.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Bu, Lumaro’nun oynatabileceği bir film değil.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Zamanında yanıt gelmedi.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Filmleri açan kitaplıklar eksik.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro bu tür adresleri desteklemiyor.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Bu adda bir sunucu yok veya ağ bağlantısı yok.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Sunucuya ulaşılamıyor.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Sunucu bağlantıyı reddetti.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Sunucuyla bağlantı koptu.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Sunucu dosyaları yalnızca baştan gönderiyor; ilk gereken veriler ise bu filmin sonunda. Oynatmak için filmi indirin.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Sunucu ad ve parola istiyor (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Sunucu izin vermiyor (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Sunucuda böyle bir dosya yok (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Sunucu isteği geri çevirdi.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Sunucuda bir hata oluştu.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>Bu klasörde film yok.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Dosya bir oynatma listesi değil.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>Oynatma listesinde film yok.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Oynatma listesi 32 MB’tan büyük.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Oynatma listesi çok uzun. Yalnızca ilk 100.000 öge açıldı.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Çok fazla oynatma listesi birbirini gösteriyor. Bu liste atlandı.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Windows sürücülerindeki ögeler atlandı (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Oynatma listesi ağdan geliyor. Bu bilgisayardaki dosyaları gösteren ögeler atlandı (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Ne dosya ne de adres olan ögeler atlandı (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Okunmasına izin verilmeyen klasörler (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Her yerde arama yapılamadı.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… ve %@ tane daha.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>“%@”: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ dosya açılamıyor.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ film düzgün oynatılamayabilir.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Lumaro’nun oynatabileceği film bulunmayan yerler:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Arabelleğe alınıyor: %%%d</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Durdu: sunucudan veri gelmiyor</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Yükleniyor: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>%@ konumundan devam edildi
%@: Baştan Başlat</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Film aranıyor: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ dosya bulundu…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Devam Et</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Aç…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Son Açılanlar</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Menüyü Temizle ve Konumları Unut</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Yeni sürümler denetlensin mi?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro zaman zaman yeni bir sürüm olup olmadığına bakabilir. Sizinle veya filmlerinizle ilgili hiçbir bilgi gönderilmez. Bunu tercihlerden değiştirebilirsiniz.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Yeni sürüm denetlenemedi.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Sitelerin hiçbirine ulaşılamadı. İnternet bağlantısını denetleyin veya daha sonra yeniden deneyin.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro güncel.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>En son sürümü kullanıyorsunuz.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Lumaro’nun yeni bir sürümü var.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@ sürümü %@ şimdi indirilebilir.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Şimdi İndir…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Bu Sürümü Atla</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Daha Sonra</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Lumaro’yu beğeniyor musunuz?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro ücretsizdir. Bağışlar onu yaşatmaya yardımcı olur.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Bağış Yap…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Yeni %@ sürümü %@ var</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Yansı sitelerin hiçbirine ulaşılamadı</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>Kararlı</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Denetleniyor…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Hiçbir zaman</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Oynat</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Durdur</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Baş</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Son</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>İleri Sar ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Geri Sar ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d sn İleri</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d sn Geri</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Sonraki Kare</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Önceki Kare</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Sonraki: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Önceki: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Sonraki Ekran</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Önceki Ekran</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Uyku</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Bilgisayarı Yeniden Başlat</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Bilgisayarı Kapat</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Oturumu Kapat</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Yeniden başlatılamadı: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Kapatılamadı: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Oturum kapatılamadı: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Boşluk</translation>
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
        <translation>Medya Oynat</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Medya Durdur</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Medya Sonraki</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Medya Önceki</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Medya Sesi Yükselt</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Medya Sesi Alçalt</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Medya Sessiz</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Uykuya geçilemedi: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Boyut: Yarım</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Boyut: Normal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Boyut: Çift</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Boyut: Tam Ekran</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Boyut: Genişliğe Sığdır</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Boyut: Yüksekliğe Sığdır</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Boyut: Daha Büyük</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Boyut: Daha Küçük</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Denetim Çubuğu: Açık</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Denetim Çubuğu: Kapalı</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Ses Düzeyi: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Sessiz: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Ses kapalı</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%%%d</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Süre: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Yineleme: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Bir</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Altyazılar: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Onarma: Açık</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Onarma: Kapalı</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>Bunun %d satırı okunamıyor.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>Bunun %d resmi okunamıyor.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>“Onar” (Altyazılar menüsü) yardımcı olabilir.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Biçem</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Film açmak için %@ tuşuna basın</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>veya dosyaları buraya bırakın. %@ tüm tuşları gösterir.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Oynatma</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Ses</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Oynatma Listesi</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Altyazılar</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Pencere</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Aradığınızı yazın. Her komut menüde de vardır: ekranın üst kenarında veya farenin sağ düğmesinde.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Ne yapmak istiyorsunuz?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Bu sözcükleri içeren komut yok.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Filmi izleme ve filmde gezinme</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Daha yüksek, daha alçak, sessiz</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Altyazıları okuma</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Görüntüyü büyütme ve oynatılanı görme</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Filmler arasında seçim</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Başka ekrana geçme</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Açma, ayarlama ve çıkma</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Yardım bulma</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>URL Aç…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Birden Çok URL Aç…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Oynatma Listesini Kaydet…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Oynatma Listesini Kaydet</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Oynatma Listesi</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Oynatma listesini dosyaya kaydet</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>“%@” kaydedilemiyor.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Oraya yazma izniniz yok.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Diske yazılamıyor.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Disk dolu.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Klasör yok.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Bu bir klasör.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Tercihler…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Lumaro Hakkında</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Yeni Sürümü Denetle…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Yarım Boyut</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normal Boyut</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Çift Boyut</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Tam Ekran</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Ekrana Sığdır</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Genişliğe Sığdır</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Yüksekliğe Sığdır</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Daha Büyük</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Daha Küçük</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Denetim Çubuğunu Göster</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Görüntünün Üzerindeki Çubuk</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Görüntünün üzerindeki çubuk: kapalı, her zaman, imleç hareket edince</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Görüntünün Üzerindeki Çubuk: Kapalı</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Görüntünün Üzerindeki Çubuk: Her Zaman</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Görüntünün Üzerindeki Çubuk: İmleç Hareket Edince</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Parçalar…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Ses ve altyazılar tek menüde</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Ses</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Denetim Çubuğunu Gizle</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Sonraki Ekran Gösterimi</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Önceki Ekran Gösterimi</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>İleri Sar</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Geri Sar</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>İleri Atla</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Geri Atla</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Baş</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Son</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Sonraki Film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Önceki Film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Yineleme Yok</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Yineleme Yok</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Birini Yinele</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Tümünü Yinele</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Onar</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Sesi Yükselt</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Sesi Alçalt</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normal Ses Düzeyi</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>En Düşük Ses Düzeyi</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Sessiz</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Sonraki Ekran</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Önceki Ekran</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Daha Fazla…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Tüm liste: film arama, taşıma ve kaldırma</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Oynatma Listesi</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Süz</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Yukarı Taşı</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Aşağı Taşı</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ / %@ film</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro Yardımı</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Film aç</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Yarım, normal ve çift boyut</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Ekrana, genişliğe, yüksekliğe sığdır</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Daha büyük ve daha küçük</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Denetim çubuğu</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Ekran gösterimi: süre, film, altyazılar, yineleme, ses düzeyi</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Oynat, duraklat, normal hıza dön</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>İleri ve geri: duraklatılmışken kare kare, oynatırken gittikçe hızlı</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>İleri ve geri atla</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Filmin başı ve sonu</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Sonraki ve önceki film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Çift Tıklama</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Orta Düğme</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Geri Düğmesi</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>İleri Düğmesi</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Tekerlek Yukarı</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Tekerlek Aşağı</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Yineleme: kapalı, bir, tümü</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Sesi yükselt ve alçalt</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Sonraki ve önceki altyazılar</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Ses Daha Erken</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Ses Daha Geç</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Ses Dosyadaki Gibi</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Ses daha erken ve daha geç</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Ses dosyadaki zamanında</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Ses gecikmesi: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Altyazı Ekle…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Altyazı Ekle</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Filme bir altyazı dosyası ekle</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>“%@” okunabilir altyazı içermiyor</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Filme Altyazı Olarak Ekle</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Daha Erken Göster</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Daha Geç Göster</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Dosyadaki Gibi</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Altyazıları Daha Erken Göster</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Altyazıları Daha Geç Göster</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Altyazılar Dosyadaki Zamanında</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Altyazılar daha erken ve daha geç</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Altyazılar dosyadaki zamanında</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>İlk Satır Şimdi Söyleniyor</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Son Satır Şimdi Söyleniyor</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>İki satırla eşitleme: ilk satır söylenirken birine, son satır söylenirken ötekine basın</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Daha Büyük Metin</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Daha Küçük Metin</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Daha Büyük Altyazılar</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Daha Küçük Altyazılar</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Altyazılar daha büyük ve daha küçük</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Daha Yukarı</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Daha Aşağı</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Altyazılar Daha Yukarı</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Altyazılar Daha Aşağı</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Altyazılar daha yukarı ve daha aşağı</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Altyazı gecikmesi: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Altyazı boyutu: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Altyazı yüksekliği: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Satırlar eşitlenemiyor: iki kattan daha hızlı veya daha yavaş olurlardı</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Hasarlı altyazıları onar</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Sonraki ve önceki ekran</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Batı (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Batı (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Batı (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Batı (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Batı (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Batı (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latin-ABD (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Orta Avrupa (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Orta Avrupa (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Orta Avrupa (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Orta Avrupa (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Batı (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Orta Avrupa (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Kuzey Avrupa (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>İzlandaca (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Kuzey Avrupa (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Baltık (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Baltık (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Baltık (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Kelt (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Kiril (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Kiril (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Kiril (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukraynaca (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Kiril (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Kiril (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Rusça (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Yunanca (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Yunanca (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Yunanca (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Yunanca (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Yunanca (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Türkçe (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Türkçe (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Türkçe (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Türkçe (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>İbranice (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>İbranice (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>İbranice (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arapça (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arapça (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arapça (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portekizce (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Kanada Fransızcası (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Tayca (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Tayca (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamca (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japonca (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japonca (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japonca (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japonca (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japonca (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japonca (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Çince (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Basitleştirilmiş Çince (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Basitleştirilmiş Çince (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Basitleştirilmiş Çince (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Basitleştirilmiş Çince (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Çince (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Geleneksel Çince (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Geleneksel Çince (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Geleneksel Çince (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Geleneksel Çince (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Korece (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Korece (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Korece (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>&amp;Renk:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Harflerin ve panelin çevresindeki çizginin rengi</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>Ya&amp;zı tipi:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Harflerin yazı tipi ailesi</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;Boyut:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>1080 nokta yüksekliğindeki ekranın noktaları cinsinden; daha yüksek ekranda harfler de büyür</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Gölge</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>G&amp;ölge çiz</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Gölge, harflerin her görüntü üzerinde okunmasını sağlar</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>R&amp;enk:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Gölgenin rengi ve ne kadar saydam olduğu</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>B&amp;ulanıklık:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Gölge kenarının ne kadar yayıldığı, nokta olarak</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Sa&amp;ğa:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Gölgenin ne kadar sağa düştüğü, nokta olarak; 0’ın altı sola</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>&amp;Yukarı:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Gölgenin ne kadar yukarı düştüğü, nokta olarak; 0’ın altı aşağı</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>&amp;Dikey:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>Hangi yükseklikte durduğu</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Ya&amp;tay:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Ekranın hangi yanında durduğu</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Orta</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Üst</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Orta</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Alt</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Görüntünün içinde</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Görüntünün kenarında</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Görüntünün altında</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Arka plan</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Görüntünün çevresindeki renk</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>&amp;Panel çiz</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Metnin arkasında bir panel</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Re&amp;nk:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Panelin rengi ve ne kadar saydam olduğu</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Yu&amp;varlak köşeler</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Panelin köşeleri yuvarlanır</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Y&amp;arıçap:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Köşelerin ne kadar yuvarlandığı, nokta olarak</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>&amp;Çerçeve çiz</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Panelin çevresinde metin renginde bir çizgi</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Ka&amp;lınlık:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Çizginin kalınlığı, nokta olarak</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Belirme ve opaklık</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Belir&amp;me:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Görünürken tam belirmenin süresi; 0 hemen gösterir</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>&amp;Solma:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Kaybolurken tam solmanın süresi; 0 hemen gizler</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Kalma:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Belirme ile solma arasında ne kadar kaldığı</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Gizliyken &amp;opaklık:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Gizliyken ne kadarının kaldığı: %0 hiçbir şey demektir</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Gösterilirken opaklık:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Gösterilirken ne kadar opak olduğu: %100’ün altında görüntü arkadan görünür</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Varsayılanlara Dön</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Bu biçemi ilk durumuna döndürür</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Sıfırlamayı Geri Al</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Biçemi sıfırlamadan önceki durumuna getirir</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ sn</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Örnek</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Filmin ya da açık ve koyu bir görüntünün üzerinde nasıl göründüğü</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Ne güzel bir akşam!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Ses Düzeyi: %80</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Tercihler</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Dosyasız Başlatıldığında</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;Hiçbir şey açma</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro boş bir ekranla başlar</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Son oynatma &amp;listesini aç</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Geçen seferki filmler, bırakıldıkları yerde yeniden açılır</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>&amp;Dosyaları sor</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro film açma penceresiyle başlar</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Görüntü</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Boy&amp;ut:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Filmlerin gösterildiği boyut; şimdi ve sonraki başlatmada</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Özel Büyütme</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Pen&amp;cere:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Lumaro kullanılırken filmin öteki programların pencerelerinin üstünde kalıp kalmayacağı</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Görüntünün &amp;üzerindeki çubuk:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Altında çubuk yoksa: imleçle gelen veya sürekli kalan daha büyük bir çubuk</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Her zaman</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>İmleç hareket edince</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Öteki pencereler arasında</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Öteki pencerelerin üstünde</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Denetim &amp;çubuğunu göster</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Görüntünün altında oynatma, süre ve ses düzeyi olan çubuk</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Ekran &amp;parlaklığını ayarla:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Lumaro çalıştığı sürece; sonra ekran eski parlaklığına döner</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Lumaro çalışırken ekranın parlaklığı</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Ekranın parlaklığı</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>G&amp;örüntü</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>Ka&amp;rşıtlık:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Parlaklık:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>Ga&amp;ma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>&amp;Doygunluk:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>R&amp;enk tonu:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Her film bununla gösterilir, ekrandaki film hemen</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Bu ekranın parlaklığı ayarlanamıyor</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Oynatma</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>A&amp;tlama:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Bir atlamanın kaç saniye ileri veya geri gittiği</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>saniye</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>S&amp;es düzeyini sonraki başlatma için sakla</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro, kapandığı ses düzeyiyle başlar</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Başka Bir Program Kullanılırken</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Fil&amp;mi duraklat</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Geri döndüğünüzde devam eder</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Pe&amp;ncereyi gizle</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Pencere simge durumuna küçülür ve Lumaro ile geri gelir</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Filme kalınan &amp;yerden devam et</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Son bin filmin konumları ve altyazıları hatırlanır; “Son Açılanlar” menüsü bunları listeler</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Oynatma Listesi</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Sıra</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Ekle&amp;ndiği gibi</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Filmler verildikleri sırayla oynatılır</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Karı&amp;şık</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Filmler rastgele sırayla oynatılır</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Sı&amp;ralı</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Filmler adlarına göre oynatılır</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Sayıları &amp;değerlerine göre karşılaştır</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Bölüm 2, bölüm 10’dan önce gelir</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>&amp;Tam yola göre</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Klasörler bir arada kalır</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Yalnı&amp;zca dosya adına göre</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Filmler hangi klasörde olursa olsun</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>&amp;Yineleme:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Şimdi ve yeni oynatma listelerinde neyin yineleneceği</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>A&amp;çılanı oynatmaya başla</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Yoksa filmler gösterilir ve bekler</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Sonraki filmle devam &amp;et</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Biri bitince listedeki sonraki film oynatılır</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Listenin sonunda çık</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Liste yinelenmiyorsa</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Altyazılar</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Gösterim</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Al&amp;tyazıları göster</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Daha sonra açılan filmler için de</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Bi&amp;çimlendirmeyi uygula</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Altyazı dosyalarındaki italik, renk ve konumlar uygulanır; yoksa atlanır</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Filmlerin &amp;yanındaki altyazı dosyalarını bul</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Film açılırken</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Kodla&amp;ma:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Altyazı dosyalarındaki harflerin nasıl saklandığı; “Otomatik” bunu dosyadan anlar</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Altyazı dosyalarının kodlaması</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>Ka&amp;re hızı:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Saniye yerine kare sayan altyazı dosyaları için</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Film gibi</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>&amp;Hasarlı altyazı dosyalarını onar</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Hasarlı olanlar okunabildiği kadar okunur</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Tercih Edilen Diller</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Tercih edilen diller</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Filmler, bu dillerden bulunan ilkinin altyazılarıyla başlar. Başlangıçta bunlar sisteminizin dilleridir.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Dil ekle</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Listeye bir dil ekler</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Y&amp;ukarı taşı</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Dili listede yukarı taşır</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>A&amp;şağı taşı</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Dili listede aşağı taşır</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>Kal&amp;dır</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Dili listeden kaldırır</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Bindirmeler</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>En küçük &amp;metin boyutu:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Film üzerindeki hiçbir metin bundan küçük olmaz</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Kenarlara &amp;uzaklık:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Film üzerinde gösterilenlerin pencere kenarlarına uzaklığı</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Ge&amp;ri bildirim göster</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Komutlar ne yaptıklarını bildirir</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Ekran gösterimini sonraki başlatma için sakla</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Son seçilen ekran gösterimi yeniden gösterilir</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Film üzerindeki metinlerin ve pencerenin görünümü</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Bindirme biçemleri</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Altyazıların görünümü</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Altyazı biçemleri</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Gelişmiş</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>İmleç</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>Gi&amp;zleme süresi:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>İmlecin gizlenmeden önce ne kadar hareketsiz kaldığı</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Yeni Sürümler</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Sisteminizin paketleri Lumaro’yu güncel tutar.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Yeni sürümleri &amp;denetle</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Lumaro başlarken, aşağıda ayarlanan sıklıkta</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>B&amp;eta sürümleri de</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Hâlâ denenmekte olan sürümler</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>Sık&amp;lık:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>İki denetim arasında geçen süre</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Her başlatmada</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Günlük</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Haftalık</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>30 günde bir</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Son denetim:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Sonuç:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;Şimdi Denetle</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Hemen yeni sürüm arar</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Tanılama</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Uzaktan Kumanda</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Kızılötesi kumandalara yanıt &amp;ver</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Çalıştığı sürece kumanda düğmeleri yalnızca oynatıcınındır</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Olanları günlüğe &amp;yaz</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Hata arayanlar için, sistem günlüğüne veya uçbirime yazılan satırlar</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Sayfayı Sıfırla</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Bu sayfadaki ayarları ilk durumlarına döndürür. Biçemlerin kendi düğmesi vardır.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Sıfırlamayı Geri Al</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Bu sayfadaki ayarları geri getirir (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Ayar bul</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Bir ayarı sözcükleriyle bulur (Ctrl+F). Yukarı ve Aşağı okları ötekilere, Enter ayarın kendisine gider.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d / %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Bir şey bulunamadı</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Diğer Kodlamalar</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d sn</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Ara: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Aramak için yazın</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Tercihleri değiştir</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Geri Bildirim</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Metinler</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Bit eşlemler</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Ekran Gösterimi</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Pencere</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Tercihler kaydedilemiyor.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Değişiklikleriniz Lumaro kapanana kadar geçerlidir. “%@” dosyası yazılamıyor.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Tercihler hasarlı.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro yeni tercihlerle başlıyor. Hasarlı dosya “%@” olarak saklandı.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Tercihler okunamıyor.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>“%@” dosyası olduğu gibi kalır. Değişiklikleriniz Lumaro kapanana kadar geçerlidir.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Filmlerdeki hatırlanan konumlar hasarlı; dosyaları kenara alındı.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Filmlerdeki hatırlanan konumlar okunamıyor.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Buradaki film konumlarını Lumaro’nun daha yeni bir sürümü kaydetmiş; bu sürüm kullanamıyor.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Kısayollar</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>A&amp;ra:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Komutun sözcükleri veya tuşu</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Menülere göre komutlar; kalın olanların size ait tuşları vardır</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Komutlar ve tuşları</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Komut</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Ko&amp;mutun tuşları:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Seçili komutun tuşları</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Tu&amp;ş Ekle…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Sonra tuşa basın; isterseniz Ctrl, Alt, Shift veya Super ile birlikte</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>&amp;Tuşu Kaldır</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Seçili tuşun artık bir işlevi olmaz</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Sıfır&amp;la</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Komut, Lumaro ile gelen tuşlarına döner</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>T&amp;ümünü Sıfırla</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Bütün komutlar Lumaro ile gelen tuşlarına döner</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>G&amp;eri Al</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Son tuş değişikliğini geri alır</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>B&amp;u Komuta Ata</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Tuş bundan sonra seçili komutu çalıştırır</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Tuş işlevini korur</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>“%@” için bir tuşa basın. Esc geri döner.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro bu tuşu tanımıyor.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc pencereleri kapatır ve Lumaro’dan çıkar; bu değiştirilemez.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ masaüstüne ait.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ zaten “%@” komutuna atanmış.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>“%@” komutuna daha fazla tuş atanamaz; önce birini kaldırın.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ artık “%@” komutuna atandı.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Sonraki Yineleme Kipi</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Önceki Yineleme Kipi</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Oynatma Listesini Göster</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Sonraki Altyazılar</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Önceki Altyazılar</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Altyazı Yok</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Menüden bir film açın</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>veya dosyaları buraya bırakın.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Komutun tuşları</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>&amp;Video sitelerinin sayfalarını yt-dlp ile aç</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Film olmayan bir adres, kuruluysa yt-dlp programına sorulur</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Film Aç</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Klasör Aç</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Klasör Aç…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filmler ve Ses</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Tüm Dosyalar</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Oynatma Listesine Ekle</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Film klasörlerini aç</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Bir adres veya birkaç adres aç</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>URL Aç</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Birden Çok URL Aç</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Filmin adresi veya yolu:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Filmlerin adresleri veya yolları, her satırda bir tane:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adresler</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Oynatma Listesine Ekle</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Oynatılan film sürer; Alt tuşunu basılı tutmak da aynı işi yapar</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Oynatma Listesini Değiştir</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Oynatma Listesine Ekle</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Bu bir altyazı dosyası. Altyazılar filmin yanındaysa ve adları filmin adıyla başlıyorsa kendiliğinden gösterilir.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Bu ne bir adres ne de bir dosya yolu.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>%@ konumundan devam edildi</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Hız: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Daha Yavaş</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Daha Hızlı</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Yarı Hızda</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>İki Kat Hızda</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Özgün Hız</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Ses perdesi korunarak daha yavaş ve daha hızlı; yarı hızda ve iki kat hızda</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Filmin kendi hızı</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Bölümler</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Bölüm Yok</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Bölüm %d / %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Bölüm %d / %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Sonraki Bölüm</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Önceki Bölüm</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Sonraki ve önceki bölüm</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Kareyi Kaydet</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Görüntüyü dosya olarak kaydet</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Kare: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Kaydedilecek Görüntü Yok</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Kare kaydedilemiyor: %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Zamana Git</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Zamana Git…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Belirli bir zamana git</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Filmdeki zaman:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Filmdeki zaman, en çok %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Saniye, dakika veya saat: 90, 1:30 veya 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Zaman: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Kesiti Yinele</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Buradan Yinele</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Buraya Kadar Yinele</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Bir kesiti yinele: başı, sonu, bitir</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Kesit yineleme: Kapalı</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>%@ konumundan yinele</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Yinele: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>En-Boy Oranı</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Sonraki En-Boy Oranı</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>En-boy oranı: otomatik, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>En-boy oranı: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Taramasızlaştırma</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Sonraki Taramasızlaştırma Kipi</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Taramasızlaştırma: otomatik, açık, kapalı</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Taramasızlaştırma: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Görüntü Renkleri</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Daha Az Karşıtlık</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Daha Çok Karşıtlık</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Daha Koyu</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Daha Parlak</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Daha Az Gama</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Daha Çok Gama</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Daha Az Doygunluk</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Daha Çok Doygunluk</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Renk Tonu Kırmızıya Doğru</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Renk Tonu Yeşile Doğru</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Karşıtlık, parlaklık, gama, doygunluk, renk tonu: daha az ve daha çok</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Filmin kendi renkleri</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Özgün Renkler</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Karşıtlık: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Parlaklık: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gama: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Doygunluk: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Renk tonu: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Siyah Şeritleri Kırp</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Siyah şeritleri kırp</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Kırpma: Açık</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Kırpma: Kapalı</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Siyah Şerit Yok</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>90° Döndür</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Görüntüyü döndür ve aynala</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>%d° Döndürüldü</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Aynala</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Aynalama: Açık</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Aynalama: Kapalı</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Ses Parçaları</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Ses: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Sonraki Ses Parçası</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Önceki Ses Parçası</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Sonraki ve önceki ses parçası</translation>
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
        <translation>%d kanal</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Parça %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>zorunlu</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>İkinci Altyazılar</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Sonraki İkinci Altyazılar</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>İkinci altyazılar: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Üstte ikinci altyazılar: sonraki parça, yok</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>İkinci altyazı olarak yalnızca metinler gösterilebilir ve hiçbir parça iki kez gösterilemez</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Kalite: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Sonraki Kalite</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Bir akışın sonraki kalitesi</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Tek Kalite Var</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Canlıya Git</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Şu an canlı olana git</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Canlı Yayın Değil</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Canlı</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Canlının Gerisinde</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Yeniden bağlanılıyor…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Bağlantı Kesildi</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Film bilgilerini göster veya gizle</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Film yok</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Kapsayıcı</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Dosya boyutu</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Bit hızı</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Parçalar</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Kareler</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Arabellek</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Kodek</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Kod çözücü</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Yazılım</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Donanım (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, %@ olarak gösteriliyor</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Kare hızı</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>saniyede %@</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>saniyede %@, şimdi %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dinamik aralık</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standart</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanallar</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Örnekleme hızı</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Çıkış</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (oynatılıyor)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Gösterilen altyazılar</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Gösterilen</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Geciken</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Atlanan</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ sn</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Doluyor</translation>
    </message>
</context>
</TS>
