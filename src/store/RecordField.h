// SPDX-License-Identifier: MIT
#pragma once

namespace moravel {

/// Positions of the tab-separated fields of a picture record.
enum RecordField {
    DateField, ///< "yyyyMMdd"
    SourceField, ///< Short source name.
    ThumbField, ///< Link or path of the thumbnail, or "DELETED".
    PicField, ///< Link or path of the large picture.
    ParentField, ///< Link of the web page; may be empty.
    CaptionField, ///< One line.
    InfoField, ///< One line; may be empty.
    RecordFieldCount
};

} // namespace moravel
