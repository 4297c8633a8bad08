<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>« %@ » ne peut pas être ouvert.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Le fichier est absent, endommagé ou d’un type que Lumaro ne connaît pas (erreur %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>« %@ » risque de ne pas être lu correctement.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Certaines parties du film ne peuvent pas être décodées (erreur %d). Choisissez « Continuer » pour essayer quand même.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Il n’y a rien à lire.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Aucun des fichiers indiqués n’est un film que Lumaro peut lire. Vous pouvez en choisir d’autres.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>C’est un dossier ou un périphérique, pas un fichier.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Vous n’êtes pas autorisé à lire ce fichier.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Ce n’est pas un film que Lumaro peut lire.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Aucune réponse n’est arrivée à temps.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Les bibliothèques nécessaires à l’ouverture des films sont absentes.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro ne connaît pas ce type d’adresse.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Aucun serveur ne porte ce nom, ou il n’y a pas de connexion au réseau.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Le serveur est injoignable.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Le serveur a refusé la connexion.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>La connexion au serveur a été interrompue.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Le serveur n’envoie les fichiers que depuis leur début, et ce qui est nécessaire en premier se trouve à la fin de ce film. Téléchargez-le pour le lire.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Le serveur demande un nom et un mot de passe (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Le serveur ne l’autorise pas (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Ce fichier n’existe pas sur le serveur (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Le serveur a rejeté la requête.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Le serveur a répondu par une erreur interne.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>Il n’y a aucun film dans ce dossier.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Le fichier n’est pas une liste de lecture.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>La liste de lecture ne contient aucun film.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>La liste de lecture dépasse 32 Mo.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>La liste de lecture est trop longue. Seules ses 100 000 premières entrées ont été ouvertes.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Trop de listes de lecture renvoient les unes aux autres. Celle-ci a été ignorée.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Des entrées situées sur des lecteurs Windows ont été ignorées (%@) : %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>La liste de lecture vient d’un réseau. Les entrées qui désignent des fichiers de cet ordinateur ont été ignorées (%@) : %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Les entrées qui ne désignent ni un fichier ni une adresse ont été ignorées (%@) : %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Dossiers dont la lecture n’est pas autorisée (%@) : %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Tout n’a pas pu être parcouru.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… et %@ de plus.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>« %@ » : %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ fichiers ne peuvent pas être ouverts.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ films risquent de ne pas être lus correctement.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Aucun film que Lumaro peut lire ne se trouve dans :</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Mise en mémoire tampon : %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Interrompu : aucune donnée du serveur</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Chargement : %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Reprise à %@
%@ : depuis le début</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Recherche de films : %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ fichier trouvé…</numerusform>
            <numerusform>%@ fichiers trouvés…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Ouvrir…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Ouvrir un film récent</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Vider le menu et oublier les positions</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Rechercher les nouvelles versions ?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro peut vérifier de temps en temps s’il existe une version plus récente. Rien sur vous ni sur vos films n’est transmis. Vous pouvez changer cela dans les préférences.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>La recherche d’une nouvelle version a échoué.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Aucun des sites n’a pu être joint. Vérifiez la connexion à Internet ou réessayez plus tard.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro est à jour.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Vous avez la dernière version.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Une version plus récente de Lumaro est disponible.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>La version %@ %@ peut être téléchargée maintenant.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Télécharger maintenant…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Ignorer cette version</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Lumaro vous plaît ?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro est gratuit. Un don l’aide à vivre.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Faire un don…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nouvelle version %@ %@ disponible</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Aucun site miroir n’a pu être joint</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>stable</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>bêta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Vérification…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Lecture</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Début</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Fin</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Avance rapide ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Retour rapide ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Saut en avant de %d s</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Saut en arrière de %d s</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Image suivante</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Image précédente</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Suivant : %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Précédent : %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Écran suivant</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Écran précédent</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Mettre en veille</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Redémarrer l’ordinateur</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Éteindre l’ordinateur</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Fermer la session</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Le redémarrage a échoué : %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>L’arrêt a échoué : %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>La fermeture de la session a échoué : %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Pg préc</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Pg suiv</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Maj+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Lecture (multimédia)</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Arrêt (multimédia)</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Suivant (multimédia)</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Précédent (multimédia)</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Volume + (multimédia)</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Volume − (multimédia)</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Muet (multimédia)</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>La mise en veille a échoué : %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Taille : moitié</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Taille : normale</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Taille : double</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Taille : maximale</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Taille : largeur de l’écran</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Taille : hauteur de l’écran</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Taille : plus grande</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Taille : plus petite</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Barre de contrôle : affichée</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Barre de contrôle : masquée</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volume : %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Muet : %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Muet</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d %%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Temps : %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film : %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Répétition : %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Un film</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Tous les films</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Sous-titres : %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Réparation : activée</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Réparation : désactivée</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d ligne n’y est pas lisible.</numerusform>
            <numerusform>%d lignes n’y sont pas lisibles.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d image n’y est pas lisible.</numerusform>
            <numerusform>%d images n’y sont pas lisibles.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>« Réparer » (menu Sous-titres) peut aider.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Appuyez sur %@ pour ouvrir un film</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>ou déposez des fichiers ici. %@ affiche toutes les touches.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Sous-titres</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Tapez ce que vous cherchez. Chaque commande se trouve aussi dans le menu : en haut de l’écran ou par un clic droit.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Que voulez-vous faire ?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Aucune commande ne contient ces mots.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Regarder le film et s’y déplacer</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Plus fort, moins fort, muet</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Lire les sous-titres</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Agrandir l’image et voir ce qui est en lecture</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Choisir parmi les films</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Passer sur un autre écran</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Ouvrir, configurer et quitter</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Trouver de l’aide</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Ouvrir une URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Ouvrir des URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Enregistrer la liste de lecture…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Enregistrer la liste de lecture</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Enregistrer la liste de lecture dans un fichier</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>« %@ » ne peut pas être enregistré.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Vous n’êtes pas autorisé à écrire à cet endroit.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Il est impossible d’écrire sur le disque.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>C’est un dossier.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Préférences…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>À propos de Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Rechercher une nouvelle version…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Moitié de la taille</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Taille normale</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Taille double</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Taille maximale</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Adapter à l’écran</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Adapter à la largeur</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Adapter à la hauteur</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Plus grand</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Afficher la barre de contrôle</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Barre sur l’image</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Barre sur l’image : jamais, toujours, quand le pointeur bouge</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Barre sur l’image : jamais</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Barre sur l’image : toujours</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Barre sur l’image : quand le pointeur bouge</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Pistes…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Son et sous-titres dans un seul menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Masquer la barre de contrôle</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Affichage suivant</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Affichage précédent</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Saut en avant</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Saut en arrière</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Début</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Film suivant</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Film précédent</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Ne pas répéter</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Ne pas répéter</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Répéter un film</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Répéter tous les films</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Augmenter le volume</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Diminuer le volume</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Volume normal</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Silence</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Écran suivant</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Écran précédent</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Plus…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>La liste entière : chercher, déplacer et retirer des films</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ films sur %@</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Aide de Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Ouvrir des films</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Moitié de la taille, taille normale et double</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Adapter à l’écran, à sa largeur, à sa hauteur</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Plus grand et plus petit</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Barre de contrôle</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Affichage à l’écran : temps, film, sous-titres, répétition, volume</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Lecture, pause, retour à la vitesse normale</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>En avant et en arrière : image par image en pause, de plus en plus vite pendant la lecture</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Saut en avant et en arrière</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Début et fin du film</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Film suivant et précédent</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Double-clic</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Bouton du milieu</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Bouton Précédent</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Bouton Suivant</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Molette vers le haut</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Molette vers le bas</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Répétition : non, un film, tous les films</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Plus fort et moins fort</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Sous-titres suivants et précédents</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Avancer le son</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Retarder le son</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Son comme dans le fichier</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Avancer et retarder le son</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Son synchronisé comme dans le fichier</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Décalage du son : %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Ajouter des sous-titres…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Ajouter des sous-titres</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Ajouter un fichier de sous-titres au film</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>« %@ » ne contient pas de sous-titres lisibles</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Ajouter au film comme sous-titres</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Avancer</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Retarder</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Comme dans le fichier</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Avancer les sous-titres</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Retarder les sous-titres</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Sous-titres synchronisés comme dans leur fichier</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Avancer et retarder les sous-titres</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Sous-titres synchronisés comme dans leur fichier</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>La première réplique est dite maintenant</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>La dernière réplique est dite maintenant</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Synchroniser par deux répliques : une touche pendant la première, l’autre pendant la dernière</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Sous-titres plus grands</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Sous-titres plus petits</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Sous-titres plus grands et plus petits</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Plus haut</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Plus bas</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Sous-titres plus hauts</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Sous-titres plus bas</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Sous-titres plus hauts et plus bas</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Décalage des sous-titres : %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Taille des sous-titres : %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Hauteur des sous-titres : %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Les répliques ne peuvent pas être synchronisées : elles seraient plus de deux fois plus rapides ou plus lentes</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Réparer les sous-titres endommagés</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Écran suivant et précédent</translation>
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
        <translation>Latin-US (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Europe centrale (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Europe centrale (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Europe centrale (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Europe centrale (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Occidental (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Europe centrale (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordique (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandais (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordique (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Balte (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Balte (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Balte (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celtique (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cyrillique (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cyrillique (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrillique (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukrainien (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cyrillique (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cyrillique (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russe (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Grec (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Grec (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Grec (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Grec (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Grec (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turc (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turc (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turc (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turc (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hébreu (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hébreu (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hébreu (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabe (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabe (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabe (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugais (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Français canadien (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thaï (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thaï (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamien (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japonais (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japonais (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japonais (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japonais (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japonais (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japonais (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chinois (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Chinois simplifié (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Chinois simplifié (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chinois simplifié (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Chinois simplifié (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chinois (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Chinois traditionnel (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Chinois traditionnel (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Chinois traditionnel (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Chinois traditionnel (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Coréen (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Coréen (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Coréen (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>Coul&amp;eur :</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>La couleur des lettres et de la ligne autour du panneau</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Police :</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>La famille des lettres</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;ille :</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>En points d’un écran de 1080 points de haut ; sur un écran plus haut, les lettres grandissent avec lui</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Dessiner une om&amp;bre</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Une ombre garde les lettres lisibles sur toute image</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Co&amp;uleur :</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>La couleur de l’ombre et sa transparence</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>&amp;Flou :</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>L’étalement du bord de l’ombre, en points</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>&amp;Vers la droite :</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>La distance de l’ombre vers la droite, en points ; au-dessous de 0, vers la gauche</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Vers le &amp;haut :</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>La distance de l’ombre vers le haut, en points ; au-dessous de 0, vers le bas</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>Ver&amp;tical :</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>La hauteur à laquelle il se trouve</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Hori&amp;zontal :</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Le côté de l’écran où il se trouve</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Dans l’image</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Au bord de l’image</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Sous l’image</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panneau</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>La couleur autour de l’image</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>&amp;Dessiner un panneau</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Un panneau derrière le texte</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Cou&amp;leur :</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>La couleur du panneau et sa transparence</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>&amp;Coins arrondis</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Les coins du panneau sont arrondis</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Ra&amp;yon :</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>L’arrondi des coins, en points</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Dessi&amp;ner un cadre</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Une ligne autour du panneau, de la couleur du texte</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Lar&amp;geur :</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>La largeur de la ligne, en points</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Fondu et opacité</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>&amp;Apparition :</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>La durée d’un fondu complet à l’apparition ; 0 affiche immédiatement</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>Di&amp;sparition :</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>La durée d’un fondu complet à la disparition ; 0 masque immédiatement</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>Du&amp;rée :</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Le temps d’affichage entre l’apparition et la disparition</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Opacité (&amp;masqué) :</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Ce qui en reste une fois masqué : 0 % n’en laisse rien</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Opacité (affiché) :</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Son opacité pendant l’affichage : au-dessous de 100 %, l’image transparaît</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Rend à ce style ses valeurs initiales</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Annuler le rétablissement</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Rend au style ce qu’il était auparavant</translation>
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
        <translation>Aperçu</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Son aspect sur le film, ou sur une image claire et une image sombre</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Quelle soirée !</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volume : 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Démarrage sans fichier</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;Ne rien ouvrir</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro démarre avec un écran vide</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Ouvrir la &amp;dernière liste de lecture</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Les films de la dernière fois reviennent, à l’endroit où ils ont été quittés</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Demander des fi&amp;chiers</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro commence par la fenêtre d’ouverture de films</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>&amp;Taille :</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>La taille à laquelle les films sont affichés, dès maintenant et au prochain démarrage</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Agrandissement personnalisé</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>F&amp;enêtre :</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Détermine si le film reste au-dessus des fenêtres d’autres programmes quand Lumaro est au premier plan</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>&amp;Barre sur l’image :</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Là où il n’y en a pas au-dessous : une barre plus grande, qui vient avec le pointeur ou qui reste</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Quand le pointeur bouge</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Parmi les autres fenêtres</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Au-dessus des autres fenêtres</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Affic&amp;her la barre de contrôle</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>La barre sous l’image, avec la lecture, le temps et le volume</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>R&amp;égler la luminosité de l’écran :</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Tant que Lumaro est ouvert ; l’écran retrouve ensuite sa luminosité d’avant</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>La luminosité de l’écran tant que Lumaro est ouvert</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Luminosité de l’écran</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Ima&amp;ge</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Contraste :</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>L&amp;uminosité :</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>Ga&amp;mma :</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Sa&amp;turation :</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>T&amp;einte :</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Tous les films sont affichés ainsi, celui à l’écran tout de suite</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>La luminosité de cet écran ne peut pas être réglée</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Lecture</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Sa&amp;ut de :</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Le nombre de secondes d’un saut en avant ou en arrière</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Garder le volume &amp;pour le prochain démarrage</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro démarre au volume auquel il a été quitté</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Quand un autre programme est au premier plan</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>&amp;Mettre le film en pause</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Il continue quand vous revenez</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Mas&amp;quer la fenêtre</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>La fenêtre est réduite et revient avec Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Reprendre les films &amp;où ils ont été quittés</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Les positions et les sous-titres des mille derniers films sont retenus, et le menu « Ouvrir un film récent » les énumère</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Liste de lecture</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>&amp;Ordre d’ajout</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Les films sont lus dans l’ordre où ils ont été donnés</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Aléatoir&amp;e</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Les films sont lus dans un ordre laissé au hasard</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>&amp;Trié</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Les films sont lus selon leur nom</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Comparer les &amp;nombres par leur valeur</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>La partie 2 vient avant la partie 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Selon le c&amp;hemin complet</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Les dossiers restent groupés</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Selon le nom &amp;du fichier seul</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Quels que soient les dossiers des films</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Ré&amp;pétition :</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Ce qui est répété, dès maintenant et dans les nouvelles listes de lecture</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Lire &amp;ce qui est ouvert</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Sinon, les films sont affichés et attendent</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Passer a&amp;u film suivant</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Quand un film se termine, le suivant de la liste est lu</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Quitter à la fin de la liste</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Sauf si elle est répétée</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Sous-titres</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Affichage</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Affi&amp;cher les sous-titres</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Aussi pour les films ouverts plus tard</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Appliquer la &amp;mise en forme</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>L’italique, les couleurs et les positions des fichiers de sous-titres agissent ; sinon, ils sont ignorés</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>C&amp;hercher les sous-titres à côté des films</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>À l’ouverture d’un film</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>E&amp;ncodage :</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>La façon dont les lettres des fichiers de sous-titres sont enregistrées ; « Automatique » le reconnaît au fichier</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Encodage des fichiers de sous-titres</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>Images &amp;par seconde :</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Pour les fichiers de sous-titres qui comptent des images au lieu de secondes</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Comme le film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Réparer les fichiers de sous-&amp;titres endommagés</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Ce qui est endommagé est lu autant que possible</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Langues préférées</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Langues préférées</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Les films commencent avec les sous-titres de la première de ces langues qui est disponible. Au départ, ce sont les langues de votre système.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Ajouter une langue</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Ajoute une langue à la liste</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>M&amp;onter</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Monte la langue dans la liste</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Descend la langue dans la liste</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>R&amp;etirer</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Retire la langue de la liste</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Incrustations</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;Taille minimale du texte :</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Aucun texte sur le film n’est plus petit</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>&amp;Distance des bords :</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>La distance que garde des bords de la fenêtre ce qui est affiché sur le film</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Afficher les &amp;messages</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Les commandes disent ce qu’elles ont fait</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>Garder l’affichage &amp;à l’écran au prochain démarrage</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Le dernier affichage à l’écran choisi apparaît de nouveau</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>L’aspect des textes sur le film et de la fenêtre</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Styles des incrustations</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>L’aspect des sous-titres</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Styles des sous-titres</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>A&amp;vancé</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>Mas&amp;quer après :</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>La durée d’immobilité du pointeur avant qu’il soit masqué</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nouvelles versions</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Les paquets de votre système tiennent Lumaro à jour.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Rechercher les &amp;nouvelles versions</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Au démarrage de Lumaro, aussi souvent que réglé ci-dessous</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Aussi les versions &amp;bêta</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Des versions encore à l’essai</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>Fréq&amp;uence :</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Le temps qui passe entre deux vérifications</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>À chaque démarrage</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Chaque jour</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Chaque semaine</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Tous les 30 jours</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Dernière vérification :</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Résultat :</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Vérifier &amp;maintenant</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Recherche immédiatement une nouvelle version</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnostic</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Télécommande</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Réagir aux &amp;télécommandes infrarouges</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Leurs touches appartiennent au lecteur seul tant qu’il est ouvert</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>&amp;Journaliser les événements</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Des lignes pour qui cherche une erreur, dans le journal du système ou le terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Réinitialiser la page</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Rend aux réglages de cette page leurs valeurs initiales. Les styles ont leur propre bouton.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Annuler la réinitialisation</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Rétablit les réglages de cette page (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Chercher un réglage</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Trouve un réglage par ses mots (Ctrl+F). Haut et Bas mènent aux autres, Entrée au réglage lui-même.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d sur %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Autres encodages</translation>
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
        <translation>Recherche : %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Tapez pour chercher</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Modifier les préférences</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Messages</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Images</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Affichage à l’écran</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Les préférences ne peuvent pas être enregistrées.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Vos changements agissent jusqu’à la fermeture de Lumaro. Le fichier « %@ » ne peut pas être écrit.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Les préférences sont endommagées.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro repart avec de nouvelles préférences. Le fichier endommagé est conservé sous « %@ ».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Les préférences ne peuvent pas être lues.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Le fichier « %@ » reste tel quel. Vos changements agissent jusqu’à la fermeture de Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Les positions retenues dans les films sont endommagées ; leur fichier a été mis de côté.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Les positions retenues dans les films ne peuvent pas être lues.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Une version plus récente de Lumaro retient ici les positions dans les films ; celle-ci ne le peut pas.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>R&amp;accourcis</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>Re&amp;chercher :</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Des mots d’une commande, ou sa touche</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Les commandes par menu ; celles en gras ont des touches choisies par vous</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Commandes et leurs touches</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Touches &amp;de la commande :</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Les touches de la commande sélectionnée</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Ajouter &amp;une touche…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Appuyez ensuite sur la touche, avec Ctrl, Alt, Maj ou Super si vous voulez</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Su&amp;pprimer la touche</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>La touche sélectionnée ne fait plus rien</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>La commande retrouve les touches d’origine de Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>T&amp;out rétablir</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Toutes les commandes retrouvent les touches d’origine de Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Annule le dernier changement de touche</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>R&amp;emplacer</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>La touche désigne désormais la commande sélectionnée</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>La touche garde sa fonction</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Appuyez sur une touche pour « %@ ». Échap annule.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro ne connaît pas cette touche.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Échap ferme les fenêtres et quitte Lumaro ; cela ne peut pas être changé.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ appartient au bureau.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ désigne déjà « %@ ».</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>« %@ » a déjà le nombre maximal de touches ; supprimez-en une d’abord.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ désigne maintenant « %@ ».</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Répétition suivante</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Répétition précédente</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Afficher la liste de lecture</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Sous-titres suivants</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Sous-titres précédents</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Pas de sous-titres</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Ouvrez un film dans le menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>ou déposez des fichiers ici.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Touches de la commande</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Ouvrir les pages de sites vidéo avec &amp;yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Une adresse qui n’est pas un film est confiée au programme yt-dlp, s’il est installé</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Ouvrir des films</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Ouvrir un dossier…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Films et musique</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Ajouter à la liste de lecture</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Ouvrir des dossiers de films</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Ouvrir une adresse, plusieurs adresses</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Ouvrir une URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Ouvrir des URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>Adresse &amp;ou chemin d’un film :</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>Adresses &amp;ou chemins de films, un par ligne :</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adresses</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Ajouter à la liste de lecture</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Le film en cours continue ; maintenir Alt fait de même</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Remplacer la liste de lecture</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Ajouter à la liste de lecture</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Il contient des sous-titres. Ils sont affichés d’eux-mêmes quand ils se trouvent à côté de leur film et commencent par son nom.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Ce n’est ni une adresse ni le chemin d’un fichier.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Reprise à %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Vitesse : %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Plus lentement</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Deux fois moins vite</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Deux fois plus vite</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Vitesse d’origine</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Plus lentement et plus vite, à hauteur de son égale ; deux fois moins et deux fois plus vite</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>À la vitesse d’origine du film</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Pas de chapitres</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Chapitre %d sur %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Chapitre %d sur %d : %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Chapitre suivant et précédent</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Capturer l’image</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Enregistrer l’image dans un fichier</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Capture : %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Pas d’image à enregistrer</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Impossible d’enregistrer la capture dans %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Aller à un instant</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Aller à un instant…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Aller à un instant du film</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Instant du film :</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Instant du film, jusqu’à %@ :</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Secondes, minutes ou heures : 90, 1:30 ou 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Temps : %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Répéter un passage</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Répéter à partir d’ici</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Répéter jusqu’ici</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Répéter un passage : son début, sa fin, ne plus répéter</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Passage répété : aucun</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Répétition à partir de %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Passage répété : %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Proportions</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Proportions suivantes</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Proportions : automatique, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Proportions : %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Désentrelacement</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Désentrelacement suivant</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Désentrelacement : automatique, oui, non</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Désentrelacement : %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Couleurs de l’image</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Moins de contraste</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Plus de contraste</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Plus sombre</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Plus clair</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Moins de gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Plus de gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Moins de saturation</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Plus de saturation</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Teinte vers le rouge</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Teinte vers le vert</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contraste, luminosité, gamma, saturation, teinte : moins et plus</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Les couleurs telles que le film les contient</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Couleurs d’origine</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contraste : %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Luminosité : %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma : %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Saturation : %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Teinte : %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Rogner les bandes noires</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Rogner les bandes noires</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Rognage : activé</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Rognage : désactivé</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Pas de bandes noires</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Pivoter de 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Pivoter et retourner l’image</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Image pivotée de %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Miroir : activé</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Miroir : désactivé</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Pistes audio</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Audio : %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Piste audio suivante</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Piste audio précédente</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Piste audio suivante et précédente</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d canaux</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Piste %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>forcés</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Seconds sous-titres</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Seconds sous-titres suivants</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Seconds sous-titres : %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Seconds sous-titres en haut : piste suivante, aucun</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Seuls des textes peuvent servir de seconds sous-titres, et aucune piste deux fois</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Qualité : %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Qualité suivante</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Qualité suivante d’un flux</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Une seule qualité</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Aller au direct</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Aller à ce qui passe en direct</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Pas un flux en direct</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Retard sur le direct</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Reconnexion…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Connexion perdue</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Afficher ou masquer les informations sur le film</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Pas de film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Conteneur</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Débit</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Images</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Tampon</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Décodeur</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Matériel (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, affiché en %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ par seconde</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ par seconde, maintenant %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Plage dynamique</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (en lecture)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Sous-titres affichés</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Affichées</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>En retard</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Omises</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Remplissage</translation>
    </message>
</context>
</TS>
