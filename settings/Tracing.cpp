// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Tracing.h"

#include "platform/base/Log.h"

bool gTracingEnabled = false;

TraceScope::TraceScope(const char* name)
    : _name(name) {
    trace("BEGIN: %s {", _name);
}

TraceScope::~TraceScope() {
    trace("} END: %s", _name);
}

void tracing::writeLine(const char* format, const QStringList& arguments) {
    platform::Log::write(platform::formatted(QString::fromUtf8(format), arguments));
}
