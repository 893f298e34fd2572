#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <functional>
#include <optional>

/**
 * Objects that are written one after the other, each in a line.
 *
 * Each is made when the one before is written, so that together they may be larger than the memory.
 */
class PxJsonLines
{
public:
    /** Returns the next object, or nothing after the last one. */
    using Next = std::function<std::optional<QJsonObject>()>;

    explicit PxJsonLines(const Next &next) : m_next(next) {}

    /** The next line; empty after the last one. */
    QByteArray nextLine() const;

private:
    Next m_next;
};
