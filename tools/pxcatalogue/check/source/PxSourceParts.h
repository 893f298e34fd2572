#pragma once

#include "check/source/PxCheckedFile.h"

/** A part of a comma-separated list, with its place. */
struct PxSourcePart
{
    QString text;        ///< as the library reads it, with blanks around it
    PxSourceRange range; ///< without blanks around it; empty for an empty part
    PxSourceRange whole; ///< with blanks around it
};

/** The parts of a list, or only the first ones of a very long list. */
struct PxSourceList
{
    QVector<PxSourcePart> parts;
    int count = 0; ///< of all its parts

    bool isWhole() const { return count == parts.size(); }
};

/**
 * The parts of the lists in files.
 *
 * If the places cannot be determined, for example because an entity contains several parts, all
 * parts have the place of the whole list.
 */
class PxSourceParts
{
public:
    /** The parts of an attribute's value; none if the attribute is null. */
    static PxSourceList ofAttribute(const PxCheckedFile &file, const PxSourceAttribute *attribute);
    /** The parts of the text in an element. */
    static PxSourceList ofText(const PxCheckedFile &file, const PxSourceElement &element);
};
