#include <PxElement.h>
#include <PxRows.h>
#include <geometry/PxPageConstraint.h>

class PxPageConstraintTest : public QObject
{
    Q_OBJECT

private slots:
    void setsSplitAndAddsDoNot();
    void matchesWhatItSharesOrLeavesOpen();
    void writesOneChildPerElement();
};

void PxPageConstraintTest::setsSplitAndAddsDoNot()
{
    PxPageConstraint constraint(PxPageTypeCover, PxPageAlignmentAll);
    QCOMPARE(constraint.pageTypes().size(), 10);
    QCOMPARE(constraint.intendetAlignments().size(), 7);
    constraint.setPageTypes(PxPageTypeNone);
    constraint.setIntendetAlignment(PxPageAlignmentTop);
    QCOMPARE(constraint.intendetAlignments().size(), 1);
    const auto isPageType = [&constraint](const QList<int> &type) {
        return constraint.isPageType(static_cast<PxPageTypeEnum>(type[0]));
    };
    pxCheckAnswers("none set means all", "0=true -1=true", isPageType);
    constraint.addPageType(PxPageTypeCover);
    QCOMPARE(constraint.pageTypes().size(), 1);
    // A negative number shares no bits, though it has that of the spine.
    pxCheckAnswers("cover", "1=true 69503=true 32=false 0=false -1=false -2147483647=false",
                   isPageType);
}

void PxPageConstraintTest::matchesWhatItSharesOrLeavesOpen()
{
    QHash<QString, PxPageConstraint> constraints{
        {"left", PxPageConstraint(PxPageTypeCover, PxPageAlignmentLeft)},
        {"right", PxPageConstraint(PxPageTypeSpine, PxPageAlignmentRight)},
        {"front", PxPageConstraint(PxPageTypeFullCover, PxPageAlignmentRight)},
        {"spine", PxPageConstraint(PxPageTypeSpine, PxPageAlignmentNone)}};
    constraints["whole"].addPageType(PxPageTypeCover); // its bits are not shared
    pxCheckAnswers(
        "matches",
        "open;left=true left;open=true left;spine=true spine;right=true left;right=false "
        "right;front=false whole;spine=false whole;open=true",
        [&](const QStringList &c) { return constraints[c[0]].matches(constraints[c[1]]); });
}

void PxPageConstraintTest::writesOneChildPerElement()
{
    PxPageConstraint constraint(PxPageTypeSpine, static_cast<PxPageAlignment>(16 + 64));
    constraint.addPageType(static_cast<PxPageTypeEnum>(0x20 + 0x40));
    QDomElement parent = pxElement("<template/>");
    constraint.toXml(parent);
    QCOMPARE(pxXml(parent), QString("<template><pagetype>spine</pagetype>"
                                    "<pagetype>emptypage, fullcover</pagetype>"
                                    "<intendetAlignment>TOP</intendetAlignment>"
                                    "<intendetAlignment>CENTER</intendetAlignment></template>"));
}

QTEST_GUILESS_MAIN(PxPageConstraintTest)
#include "PxPageConstraintTest.moc"
