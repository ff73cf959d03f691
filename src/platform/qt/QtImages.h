// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Images.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <any>
#include <atomic>
#include <map>
#include <memory>

namespace moravel {

/// Decodes pictures in three threads of its own, one of them for decode(). Reads JPEG, PNG, GIF, WebP, BMP and TIFF, told by
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
    DecodingHandle decode(const QString &path, QSize box,
                          std::function<void(DecodedPicture)> done) override;
    void check(const QString &path, std::function<void(QSize)> done) override;
    void size(const QString &path, std::function<void(QSize)> done) override;
    bool isImageExtension(const QString &extension) const override;
    QImage resource(const QString &name) const override;

private:
    template <typename Result>
    void run(QThreadPool &pool, std::function<Result()> work, std::function<void(Result)> done);

    void finish(quint64 job, const std::any &result);

    quint64 m_nextJob = 0;
    std::map<quint64, std::function<void(const std::any &)>> m_waiting; ///< What gets the results.
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    std::atomic<bool> m_stop = false;
    mutable QHash<QString, QImage> m_resources;
    QThreadPool m_pool;
    QThreadPool m_viewPool; ///< One thread, so that what a person waits for never queues.
    std::map<quint64, std::shared_ptr<std::atomic<bool>>> m_viewStops; ///< Of decode(), until done.
};

} // namespace moravel
