// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace moravel::server {

/// Whether clients may be given the address of a picture elsewhere as it is. They store it under
/// the last part of its path, and cut an address at a second "http" in it: what would clash or break
/// there goes through an address of our own.
bool isUsableLink(const QUrl &url);

/// An absolute http or https address in its ASCII form; empty for anything else.
QString webAddress(const QUrl &url);

} // namespace moravel::server
