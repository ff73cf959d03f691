// SPDX-License-Identifier: MIT
#pragma once

#include "support/TempHome.h"

#include "platform/linux/PosixFiles.h"

namespace moravel::testing {

/// The real file operations, with a private folder in place of the user's own folders.
class HomeFiles : public PosixFiles
{
public:
    explicit HomeFiles(const TempHome &home) : m_home(home) { }

    StandardFolders standardFolders() const override
    {
        return {m_home.path(QStringLiteral("Pictures")), m_home.path(QStringLiteral("data"))};
    }

private:
    const TempHome &m_home;
};

} // namespace moravel::testing
