#pragma once

#include "format/PxFormatRows.h"

#include <QStringList>

#include <optional>

/** The beginning of a file that is not checked: enough to recognise a file of a catalogue. */
class PxFileHead
{
public:
    /** Reads no more than the first bytes, whatever the size of the file. */
    explicit PxFileHead(const QString &path);

    /** Unset unless elements that only a file of a catalogue has show what it is. */
    std::optional<PxFileKind> kind() const { return m_kind; }
    /** The name of the product, or the ids of the first themes. */
    QStringList names() const { return m_names; }

private:
    std::optional<PxFileKind> m_kind;
    QStringList m_names;
};
