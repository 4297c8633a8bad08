// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PlainControl.h"

#include "platform/base/UserDefaults.h"
#include "prefs/PreferencesPages.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>

void PlainControl::takeTags() const {
    if (auto* popUp = qobject_cast<QComboBox*>(control)) {
        const QStringList tags = popUp->property("tags").toString().split(u' ', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < tags.size(); ++i)
            popUp->setItemData(static_cast<int>(i), tags[i].toInt());
    } else if (auto* group = qobject_cast<QButtonGroup*>(control)) {
        for (QAbstractButton* button : group->buttons())
            group->setId(button, button->property("tag").toInt());
    }
}

std::int32_t PlainControl::value() const {
    if (const auto* box = qobject_cast<const QCheckBox*>(control))
        return box->isChecked();
    if (const auto* popUp = qobject_cast<const QComboBox*>(control))
        return popUp->currentData().toInt();
    return static_cast<const QButtonGroup*>(control)->checkedId();
}

QVariant PlainControl::stored() const {
    return isBoolean || qobject_cast<const QCheckBox*>(control) ? QVariant(value() != 0) : QVariant(value());
}

void PlainControl::show(const platform::UserDefaults& settings) const {
    if (auto* box = qobject_cast<QCheckBox*>(control)) {
        box->setChecked(settings.boolForKey(key));
        return;
    }
    const std::int32_t tag = isBoolean ? settings.boolForKey(key) : settings.integerForKey(key);
    if (auto* popUp = qobject_cast<QComboBox*>(control)) {
        popUp->setCurrentIndex(popUp->findData(tag));
        return;
    }
    auto* group = static_cast<QButtonGroup*>(control);
    if (QAbstractButton* button = group->button(tag)) {
        button->setChecked(true);
    } else if (QAbstractButton* checked = group->checkedButton()) {
        group->setExclusive(false);
        checked->setChecked(false);
        group->setExclusive(true);
    }
    PreferencesPages::stopAtChecked(*group);
}

QWidget* PlainControl::widget() const {
    auto* group = qobject_cast<QButtonGroup*>(control);
    return group ? group->buttons().value(0) : static_cast<QWidget*>(control);
}
