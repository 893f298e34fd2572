#pragma once

#include "check/rules/PxElementReading.h"
#include "check/source/PxCheckedFile.h"

#include <QDateTime>

/** Checks one theme: when, to whom and for which products it is offered. */
class PxThemeElementCheck
{
public:
    /** Both must outlive the check. */
    PxThemeElementCheck(const PxCheckedFile &file, const PxSourceElement &theme);

    void run(PxFindings *findings) const;

private:
    void checkId(PxFindings *findings) const;
    void checkGroup(PxFindings *findings) const;
    void checkExpiry(PxFindings *findings) const;
    void checkDescription(PxFindings *findings) const;
    void checkKeyAccounts(PxFindings *findings) const;
    void checkKeyAccount(const PxSourceElement &account, PxFindings *findings) const;
    void checkProducts(PxFindings *findings) const;
    void checkMissingProducts(const PxSourceElement *products, PxFindings *findings) const;
    PxMissingPart missingChild(const PxSourceElement *child, const QString &name) const;

    const PxCheckedFile &m_file;
    const PxSourceElement &m_theme;
    QDateTime m_expiry; ///< invalid when it is missing or unreadable
    bool m_isExpired;
};
