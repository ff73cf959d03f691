// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/Images.h"

#include <QFile>

namespace moravel::testing {

/// Images whose files are pictures when they begin with "IMG". Results come at deliver().
class FakeImages : public Images, public Answers
{
public:
    void load(const QString &path, QSize, std::function<void(QImage)> done) override
    {
        loads.append(path);
        later([done, ok = isPicture(path)] {
            QImage image(4, 3, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            done(ok ? image : QImage());
        });
    }

    /// A picture of pictureSize, decoded into the box.
    DecodingHandle decode(const QString &path, QSize box,
                          std::function<void(DecodedPicture)> done) override
    {
        ++decodings;
        const auto cancelled = std::make_shared<bool>();
        later([this, done, box, cancelled, ok = isPicture(path)] {
            if (*cancelled)
                return;
            const bool large =
                pictureSize.width() > box.width() || pictureSize.height() > box.height();
            QImage image(large ? pictureSize.scaled(box, Qt::KeepAspectRatio) : pictureSize,
                         QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            done(ok ? DecodedPicture{image, pictureSize} : DecodedPicture());
        });
        return std::make_unique<AtEnd<Decoding>>([cancelled] { *cancelled = true; });
    }

    void check(const QString &path, std::function<void(QSize)> done) override
    {
        later([done, ok = isPicture(path)] { done(ok ? QSize(4, 3) : QSize()); });
    }

    void size(const QString &path, std::function<void(QSize)> done) override
    {
        check(path, std::move(done));
    }

    bool isImageExtension(const QString &extension) const override
    {
        return QStringList{QStringLiteral("jpg"), QStringLiteral("png")}.contains(
            extension.toLower());
    }

    QImage resource(const QString &) const override
    {
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::gray);
        return image;
    }

    QSize pictureSize{4, 3}; ///< Of the pictures that decode() gives.
    int decodings = 0;
    QStringList loads; ///< What load() was asked for.

private:
    static bool isPicture(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.read(3) == "IMG";
    }
};

} // namespace moravel::testing
