#include "drawing/PxDrawnLayer.h"

#include <QCoreApplication>

namespace {

constexpr struct
{
    const char *name;
    const char *label;
} rows[pxDrawnLayerCount] = {
    {"background", QT_TRANSLATE_NOOP("PxDrawnLayer", "Hintergrund")},
    {"areas", QT_TRANSLATE_NOOP("PxDrawnLayer", "Flächen")},
    {"surroundings", QT_TRANSLATE_NOOP("PxDrawnLayer", "Umgebung")},
    {"fittings", QT_TRANSLATE_NOOP("PxDrawnLayer", "Spirale, Haken, Loch")},
    {"barcodes", QT_TRANSLATE_NOOP("PxDrawnLayer", "Barcodes")},
    {"page-numbers", QT_TRANSLATE_NOOP("PxDrawnLayer", "Seitenzahlen")},
    {"folds", QT_TRANSLATE_NOOP("PxDrawnLayer", "Falz und Klemmbereich")},
    {"spine", QT_TRANSLATE_NOOP("PxDrawnLayer", "Rücken")},
    {"safe", QT_TRANSLATE_NOOP("PxDrawnLayer", "Sicherer Bereich")},
    {"bleed", QT_TRANSLATE_NOOP("PxDrawnLayer", "Datenformat")},
    {"trim", QT_TRANSLATE_NOOP("PxDrawnLayer", "Endformat")},
    {"marks", QT_TRANSLATE_NOOP("PxDrawnLayer", "Schneid- und Falzmarken")},
    {"dimensions", QT_TRANSLATE_NOOP("PxDrawnLayer", "Maße")},
    {"labels", QT_TRANSLATE_NOOP("PxDrawnLayer", "Beschriftung")},
    {"legend", QT_TRANSLATE_NOOP("PxDrawnLayer", "Legende")},
    {"title", QT_TRANSLATE_NOOP("PxDrawnLayer", "Schriftfeld")},
};

} // namespace

const char *pxDrawnLayerName(int layer)
{
    return rows[layer].name;
}

QString pxDrawnLayerLabel(int layer)
{
    return QCoreApplication::translate("PxDrawnLayer", rows[layer].label);
}
