#include "context/PxProductGroupPropertyManager.h"

#include <PxCreateOnce.h>

#include <QAtomicPointer>
#include <QMutex>

PxProductGroupPropertyManager *PxProductGroupPropertyManager::instance()
{
    static QAtomicPointer<PxProductGroupPropertyManager> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxProductGroupPropertyManager; });
}

PxProductGroupProperties *PxProductGroupPropertyManager::productGroupProperties(
    const PxProductGroup &group)
{
    PxProductGroupProperties *&properties = m_properties[group];
    if (!properties)
        properties = new PxProductGroupProperties;
    return properties;
}

// Forwarders to the properties of the group.
// clang-format off
QString PxProductGroupPropertyManager::fotoIndex(const PxProductGroup &group) { return productGroupProperties(group)->fotoIndex(); }
PxFotoPaperType PxProductGroupPropertyManager::paperType(const PxProductGroup &group) { return productGroupProperties(group)->paperType(); }
QColor PxProductGroupPropertyManager::borderColor(const PxProductGroup &group) { return productGroupProperties(group)->borderColor(); }
bool PxProductGroupPropertyManager::copyToWebAlbum(const PxProductGroup &group) { return productGroupProperties(group)->copyToWebAlbum(); }
void PxProductGroupPropertyManager::setFotoIndex(const PxProductGroup &group, const QString &fotoIndex) { productGroupProperties(group)->setFotoIndex(fotoIndex); }
void PxProductGroupPropertyManager::setPaperType(const PxProductGroup &group, PxFotoPaperType paperType) { productGroupProperties(group)->setPaperType(paperType); }
void PxProductGroupPropertyManager::setBorderColor(const PxProductGroup &group, const QColor &borderColor) { productGroupProperties(group)->setBorderColor(borderColor); }
void PxProductGroupPropertyManager::setCopyToWebAlbum(const PxProductGroup &group, bool copyToWebAlbum) { productGroupProperties(group)->setCopyToWebAlbum(copyToWebAlbum); }
// clang-format on
