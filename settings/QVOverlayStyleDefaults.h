// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <optional>

namespace platform {
class UserDefaults;
}

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

/// One overlay style in the settings store: the registered style of the name (kQVOverlayDefaultStyles) under the user's
/// changes to it (kQVOverlayStyles). It holds no values, so two accessors of one style always agree; it must not
/// outlive the store. Sizes, radii, widths and offsets are points, intervals seconds, opacities 0 to 1. What a style
/// lacks reads as the zero value. Main thread.
class QVOverlayStyleDefaults {
public:
    /// The style that the setting `selectorKey` names, or, where it names none, the one of kQVDefaultOverlayStyle.
    /// Nothing, with a line in the log, when no style of that name is registered.
    static std::optional<QVOverlayStyleDefaults> overlayStyleDefaultsWithKey(platform::UserDefaults& defaults,
                                                                             const QString& selectorKey);

    /// The name of the style.
    const QString& key() const { return _key; }

    /// One entry as it is stored: the user's, else the registered one.
    QVariant objectForKey(const QString& styleKey) const;
    /// Sets the user's entry; announces nothing. An invalid value is ignored: a change cannot be taken back.
    void setObject(const QVariant& value, const QString& styleKey);

    std::optional<QColor> textColor() const;
    void setTextColor(const std::optional<QColor>& color);
    QString textFontName() const;
    void setTextFontName(const QString& name);
    std::int32_t textFontSize() const;
    void setTextFontSize(std::int32_t size);

    bool shadowOn() const;
    void setShadowOn(bool flag);
    std::optional<QColor> shadowColor() const;
    void setShadowColor(const std::optional<QColor>& color);
    float shadowBlurRadius() const;
    void setShadowBlurRadius(float radius);
    QSizeF shadowOffset() const;
    void setShadowOffset(const QSizeF& offset);

    bool backgroundOn() const;
    void setBackgroundOn(bool flag);
    std::optional<QColor> backgroundColor() const;
    void setBackgroundColor(const std::optional<QColor>& color);
    bool backgroundRounded() const;
    void setBackgroundRounded(bool flag);
    float backgroundRadius() const;
    void setBackgroundRadius(float radius);

    bool frameOn() const;
    void setFrameOn(bool flag);
    float frameWidth() const;
    void setFrameWidth(float width);

    /// Bits 0 to 3: 0 centred, 1 left, 2 right. Bits 4 to 7: 0x00 centred, 0x10 top, 0x20 bottom. Bits 8 to 11: 0x100
    /// inside the parent window's frame, any other value not placed by the overlay.
    std::int32_t alignment() const;
    void setAlignment(std::int32_t code);

    /// The intervals carry single precision.
    double fadingInInterval() const;
    void setFadingInInterval(double seconds);
    double fadingOutInterval() const;
    void setFadingOutInterval(double seconds);
    double fadingDelayInterval() const;
    void setFadingDelayInterval(double seconds);
    float minAlpha() const;
    void setMinAlpha(float alpha);
    float maxAlpha() const;
    void setMaxAlpha(float alpha);

    /// Does nothing: the store is the only place of the values.
    bool synchronize() { return false; }

private:
    QVOverlayStyleDefaults(platform::UserDefaults& defaults, QString key);
    void setColorObject(const std::optional<QColor>& color, const QString& styleKey);

    platform::UserDefaults* _defaults;
    QString _key;
};
