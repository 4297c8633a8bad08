// SPDX-License-Identifier: GPL-3.0-or-later
// A window that things are dragged from, as from a file manager: drag_source ACTIONS X Y THING..., ACTIONS being some
// of "copy,move,link". Things are paths and addresses, or one text that is neither. Says on standard error by which
// action it was dropped.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

#include <cstdio>

namespace {

class Source final : public QWidget {
public:
    explicit Source(const QStringList& arguments) {
        setWindowFlags(Qt::FramelessWindowHint);
        setStyleSheet(QStringLiteral("background: rgb(250, 0, 250)"));
        setFixedSize(120, 80);
        move(arguments[2].toInt(), arguments[3].toInt());
        for (const auto& [name, action] :
             {std::pair{"copy", Qt::CopyAction}, {"move", Qt::MoveAction}, {"link", Qt::LinkAction}})
            _actions.setFlag(action, arguments[1].contains(QString::fromUtf8(name)));
        _things = arguments.mid(4);
    }

private:
    void mousePressEvent(QMouseEvent*) override {
        auto* mime = new QMimeData;
        QList<QUrl> urls;
        for (const QString& thing : _things) {
            if (thing.startsWith(u'/'))
                urls.append(QUrl::fromLocalFile(thing));
            else if (!thing.contains(u' '))
                urls.append(QUrl(thing));
        }
        if (urls.isEmpty())
            mime->setText(_things.value(0));
        else
            mime->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(mime);
        // What is first of these is what it proposes.
        const Qt::DropAction action = drag->exec(_actions, _actions & Qt::MoveAction ? Qt::MoveAction : Qt::CopyAction);
        std::fprintf(stderr, "dropped as %s\n",
                     action == Qt::MoveAction   ? "move"
                     : action == Qt::CopyAction ? "copy"
                     : action == Qt::LinkAction ? "link"
                                                : "nothing");
    }

    Qt::DropActions _actions;
    QStringList _things;
};

} // namespace

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    Source source(QCoreApplication::arguments());
    source.show();
    std::fprintf(stderr, "ready\n");
    return QApplication::exec();
}
