#pragma once

#include "check/source/PxCheckedFile.h"

/** A part of a comma-separated list and where it stands. */
struct PxSourcePart
{
    QString text;        ///< as the library reads it, with the blanks around it
    PxSourceRange range; ///< without the blanks; where nothing else is there, the place for it
    PxSourceRange whole; ///< with them
};

/** The parts of a list; of a very long one the first. */
struct PxSourceList
{
    QVector<PxSourcePart> parts;
    int count = 0; ///< of all its parts

    bool isWhole() const { return count == parts.size(); }
};

/**
 * The parts of the lists in files.
 *
 * Where the places cannot be told, as of what an entity of the file's own stands for, all parts
 * have the place of the whole list.
 */
class PxSourceParts
{
public:
    /** Of the value of an attribute; none if it is null. */
    static PxSourceList ofAttribute(const PxCheckedFile &file, const PxSourceAttribute *attribute);
    /** Of the text in an element. */
    static PxSourceList ofText(const PxCheckedFile &file, const PxSourceElement &element);
};
