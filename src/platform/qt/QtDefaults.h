// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Defaults.h"

#include <QSettings>

namespace moravel {

/// The defaults store as an INI file, one line a key. Every value is stored as text of a fixed form
/// (lists as JSON, numbers in the C locale): the file's own lists and types do not survive a round
/// trip. What a hand-edited file holds in another form reads as absent.
///
/// Changes are written in one go when the event loop is next idle, and by the destructor.
class QtDefaults : public Defaults
{
public:
    /// Opens @p path, or with no path the user's own file (Moravel/Moravel.ini below the
    /// configuration folder). A missing file is made with the first change.
    explicit QtDefaults(const QString &path = {});

    std::optional<QStringList> list(const QString &key) const override;
    std::optional<qint64> integer(const QString &key) const override;
    std::optional<float> number(const QString &key) const override;
    std::optional<bool> boolean(const QString &key) const override;

    void setList(const QString &key, const QStringList &value) override;
    void setInteger(const QString &key, qint64 value) override;
    void setNumber(const QString &key, float value) override;
    void setBoolean(const QString &key, bool value) override;

private:
    std::optional<QString> text(const QString &key) const;

    QSettings m_settings;
};

} // namespace moravel
