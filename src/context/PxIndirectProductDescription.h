#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEmptyMeansAllSet.h>
#include <PxOrientation.h>
#include <PxTemplateTarget.h>

#include <QtGlobal>

class PxProductContext;
class QDebug;
class QDomElement;

/**
 * A description of products by the orientations and template targets that it accepts, so that
 * designs and templates can be matched with it. An empty set accepts everything.
 */
class PXPRODUCTPROPERTIES_EXPORT PxIndirectProductDescription
{
public:
    /** Accepts everything, but is invalid. */
    PxIndirectProductDescription() = default;
    /** Accepts products of the same orientation and template target. */
    explicit PxIndirectProductDescription(const PxProductContext &context);
    /** Accepts the single bits of both; a value of 0 accepts everything. */
    PxIndirectProductDescription(const PxOrientation &orientation, PxTemplateTarget target);
    PxIndirectProductDescription(const PxIndirectProductDescription &other);
    PxIndirectProductDescription &operator=(const PxIndirectProductDescription &other);
    virtual ~PxIndirectProductDescription();

    /** The single orientations of a set of flags; empty for 0. */
    static PxEmptyMeansAllSet<PxOrientation> orientations(const PxOrientation &orientation);
    /** The single template targets of a set of flags; empty for 0. */
    static PxEmptyMeansAllSet<PxTemplateTarget> templateTypes(const PxTemplateTarget &target);
    /**
     * The template target for the product class: book, calendar, gift (also for cards and
     * decorations), or unknown.
     */
    static PxTemplateTarget guessTemplateTarget(const PxProductContext &context);

    /** Whether it names no template target. */
    bool isEmpty() const { return m_templateTypes.isEmpty(); }
    /** Whether it names a template target. */
    bool isValid() const { return !isEmpty(); }

    /** The accepted template targets. */
    PxEmptyMeansAllSet<PxTemplateTarget> templateTypes() const { return m_templateTypes; }
    /** All accepted orientations as one set of flags. */
    PxOrientation orientation() const;
    /** 0.666666 for portrait, 1.5 for landscape, 1.0 for anything else. */
    double defaultWidthHeightRatio() const;
    /** Whether there are products that both descriptions accept. */
    bool matches(const PxIndirectProductDescription &other) const;

    /** Appends an "orientation" and a "type" child; nothing if the description is invalid. */
    void toXml(QDomElement &parent) const;

    bool operator==(const PxIndirectProductDescription &other) const;
    bool operator!=(const PxIndirectProductDescription &other) const { return !(*this == other); }

private:
    PxEmptyMeansAllSet<PxOrientation> m_orientations;
    PxEmptyMeansAllSet<PxTemplateTarget> m_templateTypes;
};

Q_DECLARE_TYPEINFO(PxIndirectProductDescription, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxIndirectProductDescription &description);
