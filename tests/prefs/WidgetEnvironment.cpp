// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Widgets need an application: without a display, for as long as the tests run.
class WidgetEnvironment final : public testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        _application = std::make_unique<QApplication>(_argumentCount, _arguments);
    }
    void TearDown() override { _application.reset(); }

private:
    int _argumentCount = 1;
    char _name[5] = "test";
    char* _arguments[2] = {_name, nullptr};
    std::unique_ptr<QApplication> _application;
};

const auto* const widgetEnvironment = testing::AddGlobalTestEnvironment(new WidgetEnvironment);

} // namespace
