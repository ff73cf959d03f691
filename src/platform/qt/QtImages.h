// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Images.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <any>
#include <atomic>
#include <map>

namespace moravel {

/// Decodes pictures in two threads of its own. Reads JPEG, PNG, GIF, WebP, BMP and TIFF, told by
/// their content.
///
/// Raises Qt's limit on the memory of one picture and silences the decoders' own warnings, both for
/// the whole process. Destroying it stops what is being decoded; no further result is delivered.
class QtImages : public Images
{
public:
    QtImages();
    ~QtImages() override;

    void load(const QString &path, QSize box, std::function<void(QImage)> done) override;
    void check(const QString &path, std::function<void(QSize)> done) override;
    void size(const QString &path, std::function<void(QSize)> done) override;
    bool isImageExtension(const QString &extension) const override;
    QImage resource(const QString &name) const override;

private:
    template <typename Result>
    void run(std::function<Result()> work, std::function<void(Result)> done);

    void finish(quint64 job, const std::any &result);

    quint64 m_nextJob = 0;
    std::map<quint64, std::function<void(const std::any &)>> m_waiting; ///< What gets the results.
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    std::atomic<bool> m_stop = false;
    mutable QHash<QString, QImage> m_resources;
    QThreadPool m_pool;
};

} // namespace moravel
