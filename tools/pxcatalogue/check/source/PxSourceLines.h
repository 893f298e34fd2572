#pragma once

#include "check/source/PxPlace.h"

#include <QMap>
#include <QVector>

class PxCheckedFile;

/** The lines of files in which places begin. */
class PxSourceLines
{
public:
    /** A piece of a line: all of it, unless it is very long. */
    struct Piece
    {
        QString text;
        int column = 1; ///< of its first character, like those of places
    };

    /** Reads each of the files again, but keeps only the pieces. */
    explicit PxSourceLines(const QVector<PxPlace> &places);
    /** The same for places that all are in this file, which is read already. */
    PxSourceLines(const PxCheckedFile &file, const QVector<PxPlace> &places);

    /** The piece around one of the places; empty if there is none, or the file is changed. */
    Piece at(const PxPlace &place) const;

private:
    void addPieces(const QString &path, const PxCheckedFile &file);

    using Spot = QPair<int, int>; // line and column

    QMap<QString, QMap<Spot, Piece>> m_pieces; // by path
};
