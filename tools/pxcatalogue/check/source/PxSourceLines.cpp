#include "check/source/PxSourceLines.h"

#include "check/source/PxCheckedFile.h"

namespace {

/** Of a line, before and behind a place; terminals are not wider. */
constexpr int maximumLength = 500;

/** Columns count characters, of which some are two units of the text. */
PxSourceLines::Piece pieceOf(QStringView line, int column)
{
    const int first = qMax(1, column - maximumLength);
    const int last = column + maximumLength;
    int begin = 0;
    int end = 0;
    for (int current = 1; end < line.size() && current < last; ++current) {
        if (current == first)
            begin = end;
        const bool isPair = line[end].isHighSurrogate() && end + 1 < line.size();
        end += isPair ? 2 : 1;
    }
    return {line.mid(begin, end - begin).toString(), first};
}

} // namespace

PxSourceLines::PxSourceLines(const QVector<PxPlace> &places)
{
    for (const PxPlace &place : places)
        m_pieces[place.path][{place.line, place.column}] = {};
    for (const QString &path : m_pieces.keys())
        addPieces(path, PxCheckedFile(path));
}

PxSourceLines::PxSourceLines(const PxCheckedFile &file, const QVector<PxPlace> &places)
{
    for (const PxPlace &place : places)
        m_pieces[place.path][{place.line, place.column}] = {};
    for (const QString &path : m_pieces.keys())
        addPieces(path, file);
}

void PxSourceLines::addPieces(const QString &path, const PxCheckedFile &file)
{
    QMap<Spot, Piece> &pieces = m_pieces[path];
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece)
        *piece = pieceOf(file.source().line(piece.key().first), piece.key().second);
}

PxSourceLines::Piece PxSourceLines::at(const PxPlace &place) const
{
    return m_pieces.value(place.path).value({place.line, place.column});
}
