// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>
#include <QVariant>

#include <array>
#include <cstdint>
#include <optional>
#include <variant>

// The entries of one style.
inline const QString kTextColor = QStringLiteral("TextColor");
inline const QString kTextFontName = QStringLiteral("TextFontName");
inline const QString kTextFontSize = QStringLiteral("TextFontSize");
inline const QString kShadowOn = QStringLiteral("ShadowOn");
inline const QString kShadowColor = QStringLiteral("ShadowColor");
inline const QString kShadowRadius = QStringLiteral("ShadowRadius");
inline const QString kShadowOffset = QStringLiteral("ShadowOffset");
inline const QString kBackgroundOn = QStringLiteral("BackgroundOn");
inline const QString kBackgroundColor = QStringLiteral("BackgroundColor");
inline const QString kBackgroundRounded = QStringLiteral("BackgroundRounded");
inline const QString kBackgroundRadius = QStringLiteral("BackgroundRadius");
inline const QString kFrameOn = QStringLiteral("FrameOn");
inline const QString kFrameWidth = QStringLiteral("FrameWidth");
inline const QString kAlignment = QStringLiteral("Alignment");
inline const QString kFadingInInterval = QStringLiteral("FadingInInterval");
inline const QString kFadingOutInterval = QStringLiteral("FadingOutInterval");
inline const QString kFadingDelayInterval = QStringLiteral("FadingDelayInterval");
inline const QString kMinAlpha = QStringLiteral("MinAlpha");
inline const QString kMaxAlpha = QStringLiteral("MaxAlpha");

/// How an overlay looks, fades and stands. Sizes, radii, widths and offsets are points, intervals seconds (stored in
/// single precision), opacities 0 to 1. Values are as they are stored: whoever uses them makes do with absurd ones.
/// The style of all zero values is that of an overlay without one: it stays transparent.
struct OverlayStyle {
    std::optional<QColor> textColor;
    /// A family.
    QString textFontName;
    std::int32_t textFontSize = 0;
    bool shadowOn = false;
    std::optional<QColor> shadowColor;
    float shadowBlurRadius = 0;
    QSizeF shadowOffset{0, 0};
    bool backgroundOn = false;
    std::optional<QColor> backgroundColor;
    bool backgroundRounded = false;
    /// Of the corners.
    float backgroundRadius = 0;
    bool frameOn = false;
    float frameWidth = 0;
    /// Bits 0 to 3: 0 centred, 1 left, 2 right. Bits 4 to 7: 0x00 centred, 0x10 top, 0x20 bottom. Bits 8 to 11: 0x100
    /// inside the parent window's frame, any other value not placed by the overlay.
    std::int32_t alignment = 0;
    double fadingInInterval = 0;
    double fadingOutInterval = 0;
    double fadingDelayInterval = 0;
    float minAlpha = 0;
    float maxAlpha = 0;

    /// One of the values.
    using Field =
        std::variant<std::optional<QColor> OverlayStyle::*, QString OverlayStyle::*, std::int32_t OverlayStyle::*,
                     bool OverlayStyle::*, float OverlayStyle::*, double OverlayStyle::*, QSizeF OverlayStyle::*>;
    /// A value with the key of its entry.
    struct Entry {
        QString key;
        Field field;
    };
    /// The table of all values.
    static const std::array<Entry, 19>& entries();
    static const QString& keyOf(const Field& field);

    /// Takes a value over from its stored form; what is missing or of another type becomes the zero value.
    void read(const Field& field, const QVariant& stored);
    /// A value in its stored form; invalid for no colour and a null text.
    QVariant stored(const Field& field) const;
};
