// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/DarkPalette.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QScopedValueRollback>
#include <QStyleHints>

namespace platform {

namespace {

QPalette darkPalette() {
    constexpr struct {
        QPalette::ColorRole role;
        QRgb color;
    } colors[] = {{QPalette::Window, 0xff2e2e2e},      {QPalette::WindowText, 0xffeeeeee},
                  {QPalette::Base, 0xff232323},        {QPalette::AlternateBase, 0xff2b2b2b},
                  {QPalette::Text, 0xffeeeeee},        {QPalette::PlaceholderText, 0xff959595},
                  {QPalette::Button, 0xff313131},      {QPalette::ButtonText, 0xffeeeeee},
                  {QPalette::BrightText, 0xffff7b72},  {QPalette::Highlight, 0xff2f6cb5},
                  {QPalette::Link, 0xff7ab7ff},        {QPalette::LinkVisited, 0xffc3a6ff},
                  {QPalette::Light, 0xff565656},       {QPalette::HighlightedText, 0xffffffff},
                  {QPalette::Midlight, 0xff484848},    {QPalette::Mid, 0xff292929},
                  {QPalette::Dark, 0xff1d1d1d},        {QPalette::Shadow, 0xff101010},
                  {QPalette::ToolTipBase, 0xff3c3c3c}, {QPalette::ToolTipText, 0xffeeeeee}};
    QPalette palette;
    for (const auto& [role, color] : colors)
        palette.setColor(role, QColor(color));
    const QColor faded(0x80, 0x80, 0x80);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a, 0x4a, 0x4a));
    return palette;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

DarkPalette::DarkPalette() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    // From here on Qt's themes may follow the desktop by themselves, some versions later than others.
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, [this] { settle(); });
#endif
}

void DarkPalette::setWanted(bool wanted) {
    _wanted = wanted;
    settle();
}

void DarkPalette::settle() {
    if (_isSettling)
        return; // what is set here is no change of the theme's
    const QScopedValueRollback settling(_isSettling, true);
    if (_isOurs)
        QApplication::setPalette(QPalette()); // the theme's own is back
    _isOurs = _wanted && !isDark(QApplication::palette());
    if (_isOurs)
        QApplication::setPalette(darkPalette());
}

} // namespace platform
