#pragma once

#include "drawing/PxDrawing.h"
#include "writing/PxProblem.h"

#include <QSet>
#include <QStringList>
#include <QVector>

#include <optional>

class PxCommandLine;
struct PxOption;

/** The options of the command "draw", decoded. */
class PxDrawOptions
{
public:
    enum class Format { Svg, Pdf, Png };

    /** All options, in the order of --help. */
    static QVector<PxOption> all();

    explicit PxDrawOptions(const PxCommandLine &line);

    /** What is wrong with the options. */
    std::optional<PxProblem> problem() const { return m_problem; }

    /** With how many pages; 0 for as many as the product is sold with. */
    int pageCount() const { return m_pageCount; }
    /** The file to write; empty for stdout. */
    QString output() const { return m_output; }
    Format format() const { return m_format; }
    /** Pixels per inch of a PNG at true scale; 0 if legible texts shall decide. */
    int dpi() const { return m_dpi; }
    PxDrawnLayers layers() const { return m_layers; }
    /** Finds the indexes of the sheets to draw. Returns a problem if the product lacks one. */
    std::optional<PxProblem> findSheets(const PxDrawnProduct &product, QVector<int> *sheets) const;

private:
    void readOutput();
    void readLayers(const QStringList &parts);
    void readSheets(const QStringList &parts);
    void setProblem(const QString &problem);

    int m_pageCount;
    int m_dpi;
    QString m_output;
    Format m_format = Format::Svg;
    PxDrawnLayers m_layers;
    QStringList m_sheetKinds; // "all", "cover", "inside"
    QSet<int> m_pages;        // whose sheets are drawn
    std::optional<PxProblem> m_problem;
};
