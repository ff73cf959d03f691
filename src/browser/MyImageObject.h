// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <utility>

namespace moravel {

/// An item of the image browser: a picture file, which the view loads from its path, and its texts.
class MyImageObject
{
public:
    enum class RepresentationType { Path };

    explicit MyImageObject(QString path, QString title = {})
        : m_path(std::move(path)), m_title(std::move(title))
    { }

    static RepresentationType imageRepresentationType() { return RepresentationType::Path; }

    QString imageRepresentation() const { return m_path; }

    QString imageUID() const { return m_path; }

    QString imageTitle() const { return m_title; }

    QString imageSubtitle() const { return m_subtitle; }

private:
    QString m_path;
    QString m_title;
    QString m_subtitle;
};

} // namespace moravel
