// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The settings' keys, each in a constant named k plus the key.
inline const QString kQVEnableTrace = QStringLiteral("QVEnableTrace");
inline const QString kQVLastVersionSeen = QStringLiteral("QVLastVersionSeen");
inline const QString kQVRunFirstTimeConfig = QStringLiteral("QVRunFirstTimeConfig");
inline const QString kQVOnLaunchDefaultAction = QStringLiteral("QVOnLaunchDefaultAction");
inline const QString kQVOpenSavedPlaylist = QStringLiteral("QVOpenSavedPlaylist");
inline const QString kQVPauseOnDeactivate = QStringLiteral("QVPauseOnDeactivate");
inline const QString kQVHideOnDeactivate = QStringLiteral("QVHideOnDeactivate");
inline const QString kQVCursorAutohideDelay = QStringLiteral("QVCursorAutohideDelay");
inline const QString kQVUseRemote = QStringLiteral("QVUseRemote");
inline const QString kQVVolumeSave = QStringLiteral("QVVolumeSave");
inline const QString kQVVolumeSavedLevel = QStringLiteral("QVVolumeSavedLevel");
inline const QString kQVForceScreenBrightness = QStringLiteral("QVForceScreenBrightness");
inline const QString kQVScreenBrightness = QStringLiteral("QVScreenBrightness");
/// The colors of every movie, -100 to 100; 0 leaves them as they are in it.
inline const QString kQVPictureContrast = QStringLiteral("QVPictureContrast");
inline const QString kQVPictureBrightness = QStringLiteral("QVPictureBrightness");
inline const QString kQVPictureGamma = QStringLiteral("QVPictureGamma");
inline const QString kQVPictureSaturation = QStringLiteral("QVPictureSaturation");
inline const QString kQVPictureHue = QStringLiteral("QVPictureHue");
inline const QString kQVMainWindowScreen = QStringLiteral("QVMainWindowScreen");
inline const QString kQVMainWindowLayer = QStringLiteral("QVMainWindowLayer");
inline const QString kQVDefaultMovieSize = QStringLiteral("QVDefaultMovieSize");
inline const QString kQVControllerVisible = QStringLiteral("QVControllerVisible");
/// Whether a controller bar stands over the picture where none stands below it: ControllerOverPicture.
inline const QString kQVControllerOverPicture = QStringLiteral("QVControllerOverPicture");
inline const QString kQVJumpInterval = QStringLiteral("QVJumpInterval");
inline const QString kQVCommandKeys = QStringLiteral("QVCommandKeys");
inline const QString kQVAutoloadSubtitles = QStringLiteral("QVAutoloadSubtitles");
inline const QString kQVSortNumerically = QStringLiteral("QVSortNumerically");
inline const QString kQVSortOnlyFilenames = QStringLiteral("QVSortOnlyFilenames");
inline const QString kQVSortPlaylist = QStringLiteral("QVSortPlaylist");
inline const QString kQVPlaylistDefaultArrangement = QStringLiteral("QVPlaylistDefaultArrangement");
inline const QString kQVPlaylistDefaultLooping = QStringLiteral("QVPlaylistDefaultLooping");
inline const QString kQVPlaylistAutoPlay = QStringLiteral("QVPlaylistAutoPlay");
inline const QString kQVPlaylistAutoNext = QStringLiteral("QVPlaylistAutoNext");
inline const QString kQVPlaylistAutoQuit = QStringLiteral("QVPlaylistAutoQuit");
inline const QString kQVDisplaySubtitles = QStringLiteral("QVDisplaySubtitles");
inline const QString kQVSubtitlesDefaultEncoding = QStringLiteral("QVSubtitlesDefaultEncoding");
inline const QString kQVSubtitlesEncodingsList = QStringLiteral("QVSubtitlesEncodingsList");
inline const QString kQVSubtitlesEncodingsListSize = QStringLiteral("QVSubtitlesEncodingsListSize");
inline const QString kQVSubtitlesDefaultFPS = QStringLiteral("QVSubtitlesDefaultFPS");
/// Percent of the screen by which they stand higher than their style says.
inline const QString kQVSubtitlesHeight = QStringLiteral("QVSubtitlesHeight");
inline const QString kQVSubtitlesMarkup = QStringLiteral("QVSubtitlesMarkup");
inline const QString kQVSubtitlesRepair = QStringLiteral("QVSubtitlesRepair");
/// The languages of subtitles and sound, the preferred one first; an empty list stands for the user's.
inline const QString kQVPreferredLanguages = QStringLiteral("QVPreferredLanguages");
inline const QString kQVSubtitlesColor = QStringLiteral("QVSubtitlesColor");
inline const QString kQVSubtitlesFontName = QStringLiteral("QVSubtitlesFontName");
inline const QString kQVSubtitlesSizeMin = QStringLiteral("QVSubtitlesSizeMin");
inline const QString kQVSubtitlesSizeMax = QStringLiteral("QVSubtitlesSizeMax");
inline const QString kQVOverlayTextFontSizeMin = QStringLiteral("QVOverlayTextFontSizeMin");
inline const QString kQVOverlayDefaultPadding = QStringLiteral("QVOverlayDefaultPadding");
inline const QString kQVDisplayFeedback = QStringLiteral("QVDisplayFeedback");
inline const QString kQVOSDStateSave = QStringLiteral("QVOSDStateSave");
inline const QString kQVOSDStateSavedType = QStringLiteral("QVOSDStateSavedType");
inline const QString kQVOverlayDefaultStyles = QStringLiteral("QVOverlayDefaultStyles");
inline const QString kQVOverlayStyles = QStringLiteral("QVOverlayStyles");
inline const QString kQVDefaultOverlayStyle = QStringLiteral("QVDefaultOverlayStyle");
inline const QString kQVFeedbackOverlayStyle = QStringLiteral("QVFeedbackOverlayStyle");
inline const QString kQVOSDOverlayStyle = QStringLiteral("QVOSDOverlayStyle");
inline const QString kQVSubtitlesOverlayStyle = QStringLiteral("QVSubtitlesOverlayStyle");
inline const QString kQVVobSubOverlayStyle = QStringLiteral("QVVobSubOverlayStyle");
inline const QString kQVFullscreenOverlayStyle = QStringLiteral("QVFullscreenOverlayStyle");
inline const QString kQVRememberMovies = QStringLiteral("QVRememberMovies");
inline const QString kQVSavedState = QStringLiteral("QVSavedState");
/// So many thousand bits a second a stream may need, where it is offered in several qualities; 0: the best one.
inline const QString kQVStreamQuality = QStringLiteral("QVStreamQuality");
inline const QString kQVOpenVideoPages = QStringLiteral("QVOpenVideoPages");
inline const QString kQVOpenURLRecentListS = QStringLiteral("QVOpenURLRecentListS");
inline const QString kQVOpenURLRecentListM = QStringLiteral("QVOpenURLRecentListM");
inline const QString kQVOpenURLRecentListSSize = QStringLiteral("QVOpenURLRecentListSSize");
inline const QString kQVNewVersionShouldCheck = QStringLiteral("QVNewVersionShouldCheck");
inline const QString kQVNewVersionShouldCheckBeta = QStringLiteral("QVNewVersionShouldCheckBeta");
inline const QString kQVNewVersionCheckingPeriod = QStringLiteral("QVNewVersionCheckingPeriod");
inline const QString kQVNewVersionLastTimeChecked = QStringLiteral("QVNewVersionLastTimeChecked");
inline const QString kQVNewVersionStatus = QStringLiteral("QVNewVersionStatus");
inline const QString kQVDonationPageURL = QStringLiteral("QVDonationPageURL");
inline const QString kQVAskDonation = QStringLiteral("QVAskDonation");
inline const QString kQVAskDonationAfter = QStringLiteral("QVAskDonationAfter");

// Named otherwise than their keys.
inline const QString kQVMovieCustomScale = QStringLiteral("QVDefaultMovieSizeScale");
inline const QString kQVNewVersionSkipToBuild = QStringLiteral("QVNewVersionSkipTo");
/// The root addresses of the version check's mirrors, the one that answered last first, and the path of its data.
inline const QString kVersionMirrorsKey = QStringLiteral("org.lumaro.VersionMirrors");
inline const QString kVersionDataKey = QStringLiteral("org.lumaro.VersionData");
/// Where builds before 38 kept the mirror list of the version check.
inline const QString kLegacyVersionMirrorsKey = QStringLiteral("org.lumaro.VersionMirrorSites");
/// The folder in which the next open panel starts.
inline const QString kNSNavLastRootDirectory = QStringLiteral("NSNavLastRootDirectory");
