#include "drawing/PxDrawingPdf.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawingPainter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include <cmath>
#include <exception>

namespace {

constexpr int unitsPerInch = 254; // so that one dot is one user unit
constexpr double pointsPerUnit = 72.0 / unitsPerInch;

/** Qt rounds the size of a page to whole points: this is the next larger size, in points. */
QSizeF roundedSize(const PxDrawingSheet &sheet)
{
    return {std::ceil(sheet.canvas.width() * pointsPerUnit),
            std::ceil(sheet.canvas.height() * pointsPerUnit)};
}

void setPage(const PxDrawingSheet &sheet, QPdfWriter *writer)
{
    writer->setPageSize(
        QPageSize(roundedSize(sheet), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer->setPageMargins(QMarginsF());
}

/** All sheets, each in the upper left corner of its page. */
QByteArray paintedPages(const PxDrawing &drawing)
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(drawing.title);
    writer.setCreator(QCoreApplication::applicationName() + ' ' +
                      QCoreApplication::applicationVersion());
    writer.setResolution(unitsPerInch);
    setPage(drawing.sheets.constFirst(), &writer);
    QPainter painter(&writer);
    for (int i = 0; i < drawing.sheets.size(); ++i) {
        const PxDrawingSheet &sheet = drawing.sheets[i];
        if (i > 0) {
            setPage(sheet, &writer);
            writer.newPage();
        }
        painter.resetTransform();
        painter.translate(-sheet.canvas.topLeft());
        PxDrawingPainter::paint(sheet, &painter);
    }
    painter.end();
    return pdf;
}

/** A part of a sheet in the coordinates of its page, which begin in the lower left corner. */
QPDFObjectHandle boxOf(const QRect &part, const QRect &canvas)
{
    QPDFObjectHandle box = QPDFObjectHandle::newArray();
    for (const int units :
         {part.x() - canvas.x(), canvas.y() + canvas.height() - part.y() - part.height(),
          part.x() + part.width() - canvas.x(), canvas.y() + canvas.height() - part.y()})
        box.appendItem(QPDFObjectHandle::newReal(units * pointsPerUnit, 4));
    return box;
}

/** Makes the page as large as the sheet, and tells printers what is cut off. */
void finishPage(const PxDrawingSheet &sheet, QPDF *pdf, QPDFObjectHandle page)
{
    const double shift =
        sheet.canvas.height() * pointsPerUnit - roundedSize(sheet).height(); // 0 or less
    const QByteArray begin = "q 1 0 0 1 0 " + QByteArray::number(shift, 'f', 4) + " cm\n";
    page.addPageContents(QPDFObjectHandle::newStream(pdf, begin.toStdString()), true);
    page.addPageContents(QPDFObjectHandle::newStream(pdf, "\nQ\n"), false);
    const QRect &trim = sheet.sheet.trim;
    page.replaceKey("/MediaBox", boxOf(sheet.canvas, sheet.canvas));
    page.replaceKey("/BleedBox", boxOf(sheet.sheet.total.united(trim), sheet.canvas));
    page.replaceKey("/TrimBox", boxOf(trim, sheet.canvas));
}

QByteArray finished(const PxDrawing &drawing, const QByteArray &painted)
{
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processMemoryFile("drawing", painted.constData(), std::size_t(painted.size()));
    int i = 0;
    for (const QPDFObjectHandle &page : pdf.getAllPages())
        finishPage(drawing.sheets[i++], &pdf, page);
    pdf.getTrailer().getKey("/Info").removeKey("/CreationDate");
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setDeterministicID(true);
    writer.write();
    const auto bytes = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(bytes->getBuffer()), int(bytes->getSize())};
}

QString inMillimetres(int units)
{
    return QString::number(units / 10.0, 'f', 1);
}

} // namespace

bool PxDrawingPdf::isAvailable()
{
    return true;
}

std::optional<PxProblem> PxDrawingPdf::write(const PxDrawing &drawing, QByteArray *pdf)
{
    for (const PxDrawingSheet &sheet : drawing.sheets) {
        const QSize size = sheet.canvas.size();
        if (qMax(size.width(), size.height()) > longestSide)
            return PxProblem{
                QString("a sheet is drawn %1 x %2 mm, and no page of a PDF may be longer "
                        "than 5080 mm; fewer layers may need less, and .svg has no limit")
                    .arg(inMillimetres(size.width()), inMillimetres(size.height()))};
    }
    // Fonts are numbered in the order of a hash. The variable would keep its seed from being set.
    qunsetenv("QT_HASH_SEED");
    qSetGlobalQHashSeed(0);
    try {
        *pdf = finished(drawing, paintedPages(drawing));
    } catch (const std::exception &fault) { // of libqpdf
        return PxProblem{QString("PDF cannot be written: ") + fault.what()};
    }
    return std::nullopt;
}
