// SPDX-License-Identifier: MIT
// Reading answers whose parts may be missing or of another type than documented.
#pragma once

#include <QString>

#include <cmath>
#include <initializer_list>
#include <nlohmann/json.hpp>

namespace moravel::server {

/// The value under nested keys; null where one is missing.
inline const nlohmann::json &valueAt(const nlohmann::json &json,
                                     std::initializer_list<const char *> keys)
{
    static const nlohmann::json none;
    const nlohmann::json *value = &json;
    for (const char *key : keys) {
        if (!value->is_object())
            return none;
        const auto at = value->find(key);
        if (at == value->end())
            return none;
        value = &*at;
    }
    return *value;
}

/// A text under nested keys; empty where there is none.
inline QString textAt(const nlohmann::json &json, std::initializer_list<const char *> keys)
{
    const nlohmann::json &value = valueAt(json, keys);
    return value.is_string()
        ? QString::fromStdString(value.get_ref<const std::string &>()).trimmed()
        : QString();
}

/// A number under nested keys, also when it is written as text; 0 where there is none.
inline double numberAt(const nlohmann::json &json, std::initializer_list<const char *> keys)
{
    const nlohmann::json &value = valueAt(json, keys);
    const double number = value.is_number() ? value.get<double>() : textAt(json, keys).toDouble();
    return std::isfinite(number) ? number : 0;
}

inline int integerAt(const nlohmann::json &json, std::initializer_list<const char *> keys)
{
    constexpr double most = 1e9;
    const double number = numberAt(json, keys);
    return number > 0 && number < most ? static_cast<int>(number) : 0;
}

} // namespace moravel::server
