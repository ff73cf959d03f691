// SPDX-License-Identifier: MIT
// What comes in over a connection, in pieces, down to the fields of the form.
#include "server/core/Days.h"
#include "server/core/Form.h"
#include "server/core/PictureNames.h"
#include "server/http/RequestParser.h"

#include <cstdint>
#include <cstdlib>

using namespace moravel::server;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const ParsedHead whole = parseHead(bytes);
    // What is refused or complete must not become something else when more of it arrives.
    const ParsedHead part = parseHead(bytes.substr(0, size / 2));
    if (part.state == ParsedHead::State::Complete
        && (whole.state != part.state || whole.headBytes != part.headBytes
            || whole.request.target != part.request.target))
        std::abort();
    if (whole.state != ParsedHead::State::Complete)
        return 0;
    if (whole.headBytes > static_cast<qsizetype>(size) || whole.bodyBytes > mostBodyBytes
        || !whole.request.target.startsWith('/'))
        std::abort();
    const qsizetype mark = whole.request.target.indexOf('?');
    const auto path = percentDecoded(whole.request.target.left(mark));
    if (path)
        parsePictureName(path->section(u'/', -1));
    if (const auto form = parseForm(whole.request.target.mid(mark + 1))) {
        for (const QString &value : *form)
            parseDay(value);
    }
    return 0;
}
