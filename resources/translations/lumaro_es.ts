<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>No se puede abrir «%@».</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>El archivo no existe, está dañado o es de un tipo que Lumaro no conoce (error %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>Es posible que «%@» no se reproduzca correctamente.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Algunas partes de la película no se pueden descodificar (error %d). Elija «Continuar» para intentarlo de todos modos.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>No hay nada que reproducir.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Ninguno de los archivos indicados es una película que Lumaro pueda reproducir. Puede elegir otros.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Es una carpeta o un dispositivo, no un archivo.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>No tiene permiso para leer el archivo.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>No es una película que Lumaro pueda reproducir.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>No llegó ninguna respuesta a tiempo.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Faltan las bibliotecas que abren películas.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro no conoce este tipo de direcciones.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>No hay ningún servidor con ese nombre, o no hay conexión a la red.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>No se puede acceder al servidor.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>El servidor rechazó la conexión.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Se interrumpió la conexión con el servidor.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>El servidor solo envía los archivos desde el principio, y lo que se necesita primero está al final de esta película. Descárguela para reproducirla.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>El servidor pide un nombre y una contraseña (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>El servidor no lo permite (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Ese archivo no existe en el servidor (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>El servidor rechazó la solicitud.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>El servidor respondió con un error propio.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>No hay ninguna película en esta carpeta.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>El archivo no es una lista de reproducción.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>La lista de reproducción no contiene películas.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>La lista de reproducción ocupa más de 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>La lista de reproducción es demasiado larga. Solo se abrieron sus primeras 100 000 entradas.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Demasiadas listas de reproducción remiten unas a otras. Esta se ha omitido.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Se omitieron entradas que están en unidades de Windows (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>La lista de reproducción procede de una red. Se omitieron las entradas que indican archivos de este equipo (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Se omitieron las entradas que no indican ni un archivo ni una dirección (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Carpetas que no se permite leer (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>No se pudo buscar en todas partes.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… y %@ más.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>«%@»: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>No se pueden abrir %@ archivos.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>Es posible que %@ películas no se reproduzcan correctamente.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>No hay ninguna película que Lumaro pueda reproducir en:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Cargando el búfer: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Detenido: no llegan datos del servidor</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Cargando: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Reanudada en %@
%@: desde el principio</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Buscando películas: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ archivo encontrado…</numerusform>
            <numerusform>%@ archivos encontrados…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Abrir…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Vaciar el menú y olvidar las posiciones</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>¿Buscar versiones nuevas?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro puede comprobar de vez en cuando si existe una versión más reciente. No se envía nada sobre usted ni sobre sus películas. Puede cambiarlo en las preferencias.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Falló la búsqueda de una versión nueva.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>No se pudo acceder a ninguno de los sitios. Compruebe la conexión a Internet o inténtelo más tarde.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro está actualizado.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Tiene la última versión.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Hay disponible una versión más reciente de Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>La versión %@ %@ se puede descargar ahora.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Descargar ahora…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>¿Le gusta Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro es gratuito. Un donativo ayuda a mantenerlo vivo.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Donar…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nueva versión %@ %@ disponible</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>No se pudo acceder a ningún sitio de descarga</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>estable</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Comprobando…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Reproducir</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Principio</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Final</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Avance rápido ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Retroceso rápido ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Salto adelante de %d s</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Salto atrás de %d s</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Siguiente: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Anterior: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Pantalla siguiente</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Pantalla anterior</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Suspender</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Reiniciar el equipo</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Apagar el equipo</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Cerrar la sesión</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>No se pudo reiniciar: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>No se pudo apagar: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>No se pudo cerrar la sesión: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Mayús+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Reproducir (multimedia)</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Detener (multimedia)</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Siguiente (multimedia)</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Anterior (multimedia)</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Subir volumen (multimedia)</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Bajar volumen (multimedia)</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Silenciar (multimedia)</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>No se pudo suspender: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Tamaño: mitad</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Tamaño: normal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Tamaño: doble</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Tamaño: máximo</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Tamaño: ancho de la pantalla</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Tamaño: alto de la pantalla</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Tamaño: mayor</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Tamaño: menor</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Barra de control: visible</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Barra de control: oculta</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volumen: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Silencio: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Silenciado</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d %%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Tiempo: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Película: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Repetición: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Una</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Subtítulos: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Reparación: sí</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Reparación: no</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>No se puede leer %d de sus líneas.</numerusform>
            <numerusform>No se pueden leer %d de sus líneas.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>No se puede leer %d de sus imágenes.</numerusform>
            <numerusform>No se pueden leer %d de sus imágenes.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>«Reparar» (menú Subtítulos) puede ayudar.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Pulse %@ para abrir una película</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>o suelte archivos aquí. %@ muestra todas las teclas.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Película</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Subtítulos</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Escriba lo que busca. Todas las órdenes están también en el menú: en el borde superior de la pantalla o con el botón derecho del ratón.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>¿Qué quiere hacer?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Ninguna orden contiene estas palabras.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Ver la película y moverse por ella</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Más alto, más bajo, silencio</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Leer los subtítulos</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Ver la imagen más grande y lo que se reproduce</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Elegir entre las películas</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Pasar a otra pantalla</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Abrir, configurar y salir</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Encontrar ayuda</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Abrir URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Abrir varias URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Guardar la lista de reproducción…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Guardar la lista de reproducción</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Guardar la lista de reproducción en un archivo</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>No se puede guardar «%@».</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>No tiene permiso para escribir ahí.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>No se puede escribir en el disco.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Preferencias…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Acerca de Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Buscar una versión nueva…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Mitad del tamaño</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Tamaño normal</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Tamaño doble</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Tamaño máximo</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Ajustar a la pantalla</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Ajustar al alto</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Más grande</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Más pequeña</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Mostrar la barra de control</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Barra sobre la imagen</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Barra sobre la imagen: nunca, siempre, al mover el puntero</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Barra sobre la imagen: nunca</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Barra sobre la imagen: siempre</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Barra sobre la imagen: al mover el puntero</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Pistas…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Sonido y subtítulos en un solo menú</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Ocultar la barra de control</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Indicación siguiente</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Indicación anterior</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Retroceso rápido</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Saltar adelante</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Saltar atrás</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Principio</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Final</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Película siguiente</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Película anterior</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>No repetir</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>No repetir</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Repetir una</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Repetir todas</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Subir el volumen</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Bajar el volumen</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Volumen normal</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Sin sonido</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Pantalla siguiente</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Pantalla anterior</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Más…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>La lista completa: buscar, mover y quitar películas</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ de %@ películas</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Ayuda de Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Abrir películas</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Mitad del tamaño, tamaño normal y doble</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Ajustar a la pantalla, a su ancho, a su alto</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Más grande y más pequeña</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Barra de control</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Indicación en pantalla: tiempo, película, subtítulos, repetición, volumen</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Reproducir, pausa, volver a la velocidad normal</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Adelante y atrás: un fotograma en pausa, cada vez más rápido al reproducir</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Saltar adelante y atrás</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Principio y final de la película</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Película siguiente y anterior</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Doble clic</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Botón central</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Botón Atrás</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Botón Adelante</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Rueda hacia arriba</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Rueda hacia abajo</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Repetición: no, una, todas</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Más alto y más bajo</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Subtítulos siguientes y anteriores</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Adelantar el sonido</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Retrasar el sonido</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Sonido como en el archivo</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Adelantar y retrasar el sonido</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Sonido sincronizado como en el archivo</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Retardo del sonido: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Añadir subtítulos…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Añadir subtítulos</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Añadir un archivo de subtítulos a la película</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>«%@» no contiene subtítulos legibles</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Añadir a la película como subtítulos</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Adelantar</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Retrasar</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Como en el archivo</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Adelantar los subtítulos</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Retrasar los subtítulos</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Subtítulos sincronizados como en su archivo</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Adelantar y retrasar los subtítulos</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Subtítulos sincronizados como en su archivo</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>La primera línea se dice ahora</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>La última línea se dice ahora</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Sincronizar con dos líneas: pulsar una mientras se dice la primera línea, y la otra mientras se dice la última</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Texto más grande</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Subtítulos más grandes</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Subtítulos más pequeños</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Subtítulos más grandes y más pequeños</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Más arriba</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Más abajo</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Subtítulos más arriba</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Subtítulos más abajo</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Subtítulos más arriba y más abajo</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Retardo de los subtítulos: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Tamaño de los subtítulos: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Altura de los subtítulos: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>No se pueden sincronizar las líneas: serían más del doble de rápidas o de lentas</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Reparar subtítulos dañados</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Pantalla siguiente y anterior</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Occidental (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Occidental (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Occidental (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Occidental (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Occidental (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Occidental (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latín-EE. UU. (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Centroeuropeo (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Centroeuropeo (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Centroeuropeo (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Centroeuropeo (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Occidental (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Centroeuropeo (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nórdico (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandés (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nórdico (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Báltico (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Báltico (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Báltico (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celta (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cirílico (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cirílico (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cirílico (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ucraniano (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cirílico (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cirílico (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Ruso (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Griego (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Griego (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Griego (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Griego (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Griego (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turco (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turco (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turco (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turco (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebreo (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebreo (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebreo (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Árabe (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Árabe (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Árabe (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugués (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Francés canadiense (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Tailandés (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Tailandés (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamita (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japonés (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japonés (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japonés (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japonés (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japonés (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japonés (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chino (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Chino simplificado (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Chino simplificado (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chino simplificado (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Chino simplificado (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chino (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Chino tradicional (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Chino tradicional (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Chino tradicional (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Chino tradicional (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Coreano (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Coreano (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Coreano (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>El color de las letras y de la línea alrededor del panel</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>Tipo &amp;de letra:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>La familia de las letras</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>En puntos de una pantalla de 1080 puntos de alto; en una más alta, las letras crecen con ella</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Dibujar una &amp;sombra</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Una sombra mantiene las letras legibles sobre cualquier imagen</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Co&amp;lor:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>El color de la sombra y cuánto se ve a través de ella</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Di&amp;fuminado:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Cuánto se extiende el borde de la sombra, en puntos</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>&amp;Hacia la derecha:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Cuánto cae la sombra hacia la derecha, en puntos; por debajo de 0, hacia la izquierda</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Hacia arri&amp;ba:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Cuánto cae la sombra hacia arriba, en puntos; por debajo de 0, hacia abajo</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertical:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>A qué altura está</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Hori&amp;zontal:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>En qué lado de la pantalla está</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Medio</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Dentro de la imagen</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>En el borde de la imagen</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Debajo de la imagen</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>El color alrededor de la imagen</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Dibu&amp;jar un panel</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Un panel detrás del texto</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Colo&amp;r:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>El color del panel y cuánto se ve a través de él</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Es&amp;quinas redondeadas</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Las esquinas del panel se redondean</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Rad&amp;io:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Cuánto se redondean las esquinas, en puntos</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Dibujar &amp;un marco</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Una línea alrededor del panel, del color del texto</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>A&amp;nchura:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>La anchura de la línea, en puntos</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Fundido y opacidad</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>&amp;Aparición:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Cuánto dura un fundido completo al aparecer; 0 lo muestra al instante</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>D&amp;esaparición:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Cuánto dura un fundido completo al desaparecer; 0 lo oculta al instante</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>Per&amp;manencia:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Cuánto permanece entre la aparición y la desaparición</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>O&amp;pacidad oculto:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Cuánto queda de él mientras está oculto: 0 % es nada</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Opacidad visible:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Su opacidad mientras se muestra: por debajo del 100 % la imagen se transparenta</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Restablecer valores predeterminados</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Devuelve este estilo a como era al principio</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Deshacer el restablecimiento</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Devuelve el estilo a como era antes</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Qué aspecto tiene sobre la película, o sobre una imagen clara y otra oscura</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>¡Qué noche!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volumen: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Película</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Al iniciar sin archivo</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;No abrir nada</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro empieza con la pantalla vacía</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>A&amp;brir la última lista de reproducción</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Vuelven las películas de la última vez, en el punto en que se dejaron</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Preguntar por arc&amp;hivos</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro empieza con la ventana que abre películas</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;maño:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>A qué tamaño se muestran las películas, desde ahora y en el próximo inicio</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Ampliación personalizada</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>&amp;Ventana:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Si la película permanece sobre las ventanas de otros programas mientras Lumaro está en primer plano</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Barra sobre la &amp;imagen:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Donde no haya ninguna debajo: una barra más grande que aparece con el puntero o que permanece</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Al mover el puntero</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Entre las demás ventanas</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Sobre las demás ventanas</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Mostrar la barra de &amp;control</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>La barra con reproducción, tiempo y volumen debajo de la imagen</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>&amp;Fijar el brillo de la pantalla:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Mientras Lumaro esté abierto; después, la pantalla brilla como antes</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Cuánto brilla la pantalla mientras Lumaro está abierto</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Brillo de la pantalla</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Ima&amp;gen</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>Ga&amp;mma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Saturac&amp;ión:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>T&amp;ono:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Todas las películas se muestran así; la que está en pantalla, al instante</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>El brillo de esta pantalla no se puede ajustar</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Reproducción</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Longitud &amp;del salto:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Cuántos segundos avanza o retrocede un salto</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Conservar el volumen para el pró&amp;ximo inicio</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro empieza con el volumen con el que terminó</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Mientras otro programa está en primer plano</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Pausar la p&amp;elícula</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Continúa cuando usted vuelve</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>&amp;Ocultar la ventana</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>La ventana se minimiza y vuelve con Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Continuar las películas donde se de&amp;jaron</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Se recuerdan las posiciones y los subtítulos de las últimas mil películas, y el menú «Abrir reciente» las enumera</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Lista de reproducción</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>C&amp;omo se añadieron</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Las películas se reproducen en el orden en que se dieron</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Aleator&amp;io</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Las películas se reproducen en un orden al azar</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Or&amp;denada</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Las películas se reproducen por su nombre</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Comparar los &amp;números por su valor</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>La parte 2 va antes que la parte 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Por la ruta co&amp;mpleta</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Las carpetas permanecen juntas</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Solo por el nom&amp;bre del archivo</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Sea cual sea la carpeta de las películas</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>R&amp;epetición:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Qué se repite, desde ahora y en las listas nuevas</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Reproducir lo &amp;que se abre</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Si no, las películas se muestran y esperan</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>&amp;Continuar con la película siguiente</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Cuando termina una, se reproduce la siguiente de la lista</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Salir al &amp;final de la lista</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Salvo que se repita</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>S&amp;ubtítulos</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Visualización</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>&amp;Mostrar los subtítulos</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>También en las películas que se abran después</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Aplicar &amp;el formato</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Las cursivas, los colores y las posiciones de los archivos de subtítulos se aplican; si no, se omiten</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;Buscar los subtítulos que acompañan a las películas</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Al abrir una película</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>&amp;Codificación:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Cómo están guardadas las letras de los archivos de subtítulos; «Automático» lo reconoce por el archivo</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Codificación de los archivos de subtítulos</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Fotogramas/s:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Para archivos de subtítulos que cuentan fotogramas en lugar de segundos</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Como la película</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Reparar archivos &amp;de subtítulos dañados</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Lo dañado se lee hasta donde se puede</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Idiomas preferidos</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Idiomas preferidos</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Las películas empiezan con los subtítulos del primero de estos idiomas que haya. Al principio son los idiomas de su sistema.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Añadir un idioma</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Añade un idioma a la lista</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Sub&amp;ir</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Sube el idioma en la lista</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Ba&amp;jar</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Baja el idioma en la lista</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Quita el idioma de la lista</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Superposiciones</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Tamaño mínimo &amp;del texto:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Ningún texto sobre la película es más pequeño</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Distancia a los &amp;bordes:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>A qué distancia de los bordes de la ventana queda lo que se muestra sobre la película</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>&amp;Mostrar avisos</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Las órdenes dicen lo que han hecho</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Conservar la indicación para el próximo inicio</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Se vuelve a mostrar la última indicación en pantalla elegida</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>El aspecto de los textos sobre la película y de la ventana</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Estilos de las superposiciones</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>El aspecto de los subtítulos</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Estilos de los subtítulos</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Avanzado</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Puntero</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Ocultar tras:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Cuánto tiempo está quieto el puntero antes de ocultarse</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Versiones nuevas</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Los paquetes de su sistema mantienen Lumaro actualizado.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;Buscar versiones nuevas</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Al iniciar Lumaro, con la frecuencia indicada abajo</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>También &amp;versiones beta</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versiones que aún se están probando</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Frecuencia:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Cuánto tiempo pasa entre dos comprobaciones</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>En cada inicio</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Cada día</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Cada semana</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Cada 30 días</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Última comprobación:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Resultado:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;Comprobar ahora</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Busca una versión nueva de inmediato</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnóstico</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Mando a distancia</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Responder a &amp;mandos infrarrojos</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Sus botones son solo del reproductor mientras está abierto</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Registrar lo &amp;que sucede</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Líneas para quien busca un error, en el registro del sistema o en el terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Restablecer página</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Devuelve los ajustes de esta página a como eran al principio. Los estilos tienen su propio botón.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Deshacer el restablecimiento</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Recupera los ajustes de esta página (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Encuentra un ajuste por sus palabras (Ctrl+F). Arriba y Abajo van a los demás, Intro al propio ajuste.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d de %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Sin resultados</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Más codificaciones</translation>
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
        <translation>Búsqueda: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Escriba para buscar</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Cambiar las preferencias</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Avisos</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Imágenes</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Indicación en pantalla</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>No se pueden guardar las preferencias.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Lo que cambie vale hasta que salga de Lumaro. No se puede escribir el archivo «%@».</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Las preferencias están dañadas.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro empieza con otras nuevas. El archivo dañado se conserva como «%@».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>No se pueden leer las preferencias.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>El archivo «%@» se queda como está. Lo que cambie vale hasta que salga de Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Las posiciones recordadas de las películas están dañadas; su archivo se ha apartado.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>No se pueden leer las posiciones recordadas de las películas.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Una versión posterior de Lumaro recuerda aquí las posiciones de las películas; esta no puede.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>A&amp;tajos</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Palabras de una orden, o su tecla</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Las órdenes por menús; las que están en negrita tienen teclas elegidas por usted</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Órdenes y sus teclas</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Teclas de la orde&amp;n:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Las teclas de la orden marcada</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Aña&amp;dir tecla…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Después pulse la tecla, con Ctrl, Alt, Mayús o Súper si quiere</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>&amp;Quitar tecla</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>La tecla marcada deja de tener significado</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>R&amp;establecer</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>La orden recupera las teclas con las que viene Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Restablecer t&amp;odo</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Todas las órdenes recuperan las teclas con las que viene Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Deshace el último cambio de una tecla</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Reas&amp;ignar</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>La tecla significa desde ahora la orden marcada</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>La tecla conserva su significado</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Pulse una tecla para «%@». Esc cancela.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro no conoce esta tecla.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc cierra ventanas y sale de Lumaro; eso no se puede cambiar.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ pertenece al escritorio.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ ya significa «%@».</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>«%@» tiene tantas teclas como puede tener; quite una primero.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ significa ahora «%@».</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Repetición siguiente</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Repetición anterior</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Mostrar la lista de reproducción</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Subtítulos siguientes</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Subtítulos anteriores</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Sin subtítulos</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Abra una película desde el menú</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>o suelte archivos aquí.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Teclas de la orden</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Abrir páginas de sitios de vídeo con &amp;yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Una dirección que no es una película se consulta al programa yt-dlp, si está instalado</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Abrir películas</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Abrir carpeta…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Películas y música</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Añadir a la lista de reproducción</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Abrir carpetas de películas</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Abrir una dirección, varias direcciones</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Abrir URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Abrir varias URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Dirección o ruta de una película:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Direcciones o rutas de películas, una en cada línea:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Direcciones</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Añadir a la lista de reproducción</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Lo que se reproduce continúa; mantener pulsada Alt hace lo mismo</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Reemplazar la lista de reproducción</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Añadir a la lista de reproducción</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Contiene subtítulos. Se muestran por sí solos cuando están junto a su película y empiezan por su nombre.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>No es ni una dirección ni la ruta de un archivo.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Reanudada en %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Velocidad: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>A la mitad de velocidad</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Al doble de velocidad</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Velocidad original</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Más lento y más rápido, con el mismo tono; a la mitad y al doble de velocidad</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>A la velocidad original de la película</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Capítulos</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Sin capítulos</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Capítulo %d de %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Capítulo %d de %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Capítulo siguiente</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Capítulo anterior</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Capítulo siguiente y anterior</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Guardar captura</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Guardar la imagen como archivo</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Captura: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>No hay imagen que guardar</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>No se puede guardar la captura en %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Ir al momento</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Ir al momento…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Ir a un momento de la película</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Momento de la película:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Momento de la película, hasta %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Segundos, minutos u horas: 90, 1:30 o 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Tiempo: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Repetir fragmento</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Repetir desde aquí</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Repetir hasta aquí</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Repetir un fragmento: su principio, su final, ya no</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Fragmento repetido: ninguno</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Repetir desde %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Fragmento repetido: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Proporción</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Proporción siguiente</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Proporción: automática, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Proporción: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Desentrelazado</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Desentrelazado siguiente</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Desentrelazado: automático, sí, no</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Desentrelazado: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Colores de la imagen</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Menos contraste</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Más contraste</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Más oscura</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Más clara</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Menos gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Más gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Menos saturación</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Más saturación</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Tono hacia el rojo</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Tono hacia el verde</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contraste, brillo, gamma, saturación, tono: menos y más</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Los colores tal como los tiene la película</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Colores originales</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contraste: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Brillo: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Saturación: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Tono: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Recortar las bandas negras</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Recortar las bandas negras</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Recorte: sí</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Recorte: no</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Sin bandas negras</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Girar 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Girar y reflejar la imagen</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Imagen girada %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Espejo: sí</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Espejo: no</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Pistas de audio</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Audio: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Pista de audio siguiente</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Pista de audio anterior</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Pista de audio siguiente y anterior</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Estéreo</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d canales</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Pista %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>forzados</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Segundos subtítulos</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Segundos subtítulos siguientes</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Segundos subtítulos: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Segundos subtítulos arriba: pista siguiente, ninguno</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Solo los textos se pueden mostrar como segundos subtítulos, y ninguna pista dos veces</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Calidad: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Calidad siguiente</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Calidad siguiente de una transmisión</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Una sola calidad</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Ir al directo</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Ir a lo que se emite ahora</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>No es una transmisión en directo</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>En directo</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Retraso respecto al directo</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Reconectando…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Conexión perdida</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Mostrar u ocultar la información sobre la película</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Ninguna película</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Contenedor</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Fotogramas</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Búfer</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Códec</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Descodificador</translation>
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
        <translation>Tamaño</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, mostrado como %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ por segundo</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ por segundo, ahora %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Rango dinámico</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (en reproducción)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Subtítulos mostrados</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Mostrados</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Con retraso</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Llenando</translation>
    </message>
</context>
</TS>
