// SPDX-License-Identifier: MIT
// What most files of tests have: tables, a private folder, waiting, expected warnings, and the names of the
// program.
#pragma once

#include "support/ExpectWarning.h"
#include "support/TempHome.h"
#include "support/Wait.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <optional>
#include <tuple>

namespace moravel::testing {

/// The cases of a test; its loop names the columns: `for (const auto &[text, length] : cases)`.
template <typename... Columns>
using Table = std::initializer_list<std::tuple<Columns...>>;

} // namespace moravel::testing

using namespace moravel;
using namespace moravel::testing;
using namespace Qt::Literals::StringLiterals;
