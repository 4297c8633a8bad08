// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

class QComboBox;
class QListWidget;
class QPushButton;

namespace platform {
class UserDefaults;
} // namespace platform

/// The list of the preferred languages (kQVPreferredLanguages) with the controls that add to it, remove from it and
/// change its order. A list that the user never changed, or emptied, shows the languages of the system. Main thread.
class LanguageList final : public QObject {
public:
    struct Parts {
        QListWidget& list;
        QComboBox& add;
        QPushButton& up;
        QPushButton& down;
        QPushButton& remove;
    };
    using Choose = std::function<void(const QVariant& value, const QString& key)>;
    /// The widgets and what `choose` uses outlive it.
    LanguageList(const Parts& parts, Choose choose);

    /// Shows what is stored; tells nobody.
    void show(const platform::UserDefaults& settings);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void offerLanguages();
    void show(const QStringList& tags, qsizetype selected);
    void choose(const QStringList& tags, qsizetype selected);
    QStringList tags() const;
    void add(const QString& tag);
    void move(int by);
    void remove();
    void enableButtons();

    Parts _parts;
    Choose _choose;
    /// Whether the languages shown are the system's.
    bool _isSystems = true;
};
