// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The headers that most sources include, for the debug preset (lumaro_precompiled in LumaroTargets.cmake).

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>
