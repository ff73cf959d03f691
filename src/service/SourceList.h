// SPDX-License-Identifier: MIT
#pragma once

#include "service/HeldFetch.h"
#include "service/ServiceUrls.h"
#include "service/SourceNames.h"
#include "service/Then.h"

namespace moravel {

class Files;
class Folders;

/// Reads a sources list: one source a line, long name, tab, short name. Reading stops at the first line
/// without a tab, and at 1,000 sources (more would only exhaust the window).
SourceNames parseSources(const QString &text);

/// The sources that the service knows, asked for once and kept in a file for starts without network.
class SourceList
{
public:
    /// Fills @p sourceNames.
    SourceList(const HeldFetch &fetch, ServiceUrls urls, Files &files, Folders &folders,
               SourceNames &sourceNames);

    /// Asks the service, or takes the kept list when it does not answer.
    void getSources(const Then &then);

    void saveSourcesData(const QString &text);
    QString readSourcesData() const;

private:
    const HeldFetch &m_fetch;
    ServiceUrls m_urls;
    Files &m_files;
    Folders &m_folders;
    SourceNames &m_sourceNames;
};

} // namespace moravel
