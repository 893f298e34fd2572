#include "context/PxProductGroupProperties.h"

#include <QDate>
#include <QDebug>
#include <QLocale>
#include <QObject>

PxProductGroupProperties::PxProductGroupProperties()
    : m_fotoIndex(QObject::tr("Bestellung vom %1")
                      .arg(QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat)))
{}

void PxProductGroupProperties::setFotoIndex(const QString &fotoIndex)
{
    m_fotoIndex = fotoIndex;
}

void PxProductGroupProperties::setPaperType(PxFotoPaperType paperType)
{
    m_paperType = paperType;
}

void PxProductGroupProperties::setBorderColor(const QColor &borderColor)
{
    m_borderColor = borderColor;
}

void PxProductGroupProperties::setCopyToWebAlbum(bool copyToWebAlbum)
{
    m_copyToWebAlbum = copyToWebAlbum;
}

QDebug operator<<(QDebug debug, const PxProductGroupProperties &properties)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductGroupProperties(" << properties.fotoIndex() << ", paper "
                           << int(properties.paperType()) << ", border " << properties.borderColor()
                           << ", web album " << properties.copyToWebAlbum() << ')';
}
