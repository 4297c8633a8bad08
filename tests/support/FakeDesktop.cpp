// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeDesktop.h"

namespace {

template <class Answer>
Answer nextAnswer(std::deque<Answer>& answers, Answer otherwise) {
    if (answers.empty())
        return otherwise;
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

int FakeDesktop::runAlert(const Alert& alert) {
    alerts.push_back(alert);
    if (whileAlertIsUp)
        whileAlertIsUp();
    return nextAnswer(alertAnswers, 1);
}

QStringList FakeDesktop::runOpenPanel(const QStringList& extensions, const QString& folder) {
    openPanels.push_back({extensions, folder});
    return nextAnswer(openPanelAnswers, QStringList());
}
