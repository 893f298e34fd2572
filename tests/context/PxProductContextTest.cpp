#include "PxCatalogueDirectory.h"
#include "PxElement.h"
#include "PxRows.h"

#include <context/PxProductContext.h>
#include <context/PxProductContextsGroup.h>
#include <context/PxProductGroupProperties.h>
#include <description/PxProductPropertiesInitializer.h>
#include <description/PxProductTypeConfigRegistry.h>
#include <description/PxProductTypeDescriptionSpineData.h>
#include <geometry/PxPageConstraint.h>
#include <themes/PxThemeFactory.h>

#include <PxDirectoryConfig.h>

#include <algorithm>

class PxProductContextTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void defaultContextIsVoid();
    void settersLeaveOtherHoldersAlone();
    void validityAsksTheThemesProducts();
    void similarProductsMayDiffer();
    void compatibleProductsAreThoseOfTheTheme();
    void templatesFollowTheme();
    void printsReadably();

private:
    PxCatalogueDirectory m_directory;
};

void PxProductContextTest::initTestCase()
{
    m_directory.writeProductTypes("1 book BOOK\n2 book TWIN\n3 book BIG\n13 book LEFT"
                                  "8 gift ODD\n6 gift SET\n7 card FLAT\n13 book LEFT");
    const auto product = [this](const QByteArray &file, const QByteArray &content) {
        m_directory.write(file, "<d><product " + content + "</product></d>");
    };
    const QByteArray size = "<usablesize width='300' height='200'/>";
    const QByteArray spines = "<spines><spine pages='4'/><spine pages='6'/><spine pages='8'/>"
                              "</spines>";
    product("products/1.xml", "name='BOOK' space='xl'>" + size + spines +
                                  "<defaults>"
                                  "<defaults pageType='normalpage,empty' templates='b,l'/>"
                                  "<defaults theme='a' pageType='normalpage' background='ab'/>"
                                  "</defaults>");
    product("products/2.xml", "name='TWIN' space='xl' binding='FOIL'>" + size + spines);
    product("products/3.xml", "name='BIG' space='600cm2'>" + size + spines);
    m_directory.write("themes/a.xml",
                      "<themes><t id='a' producttype='book'><products><product>TWIN</product>"
                      "</products></t><t id='normal' producttype='book'/></themes>");
    PxDirectoryConfig::instance()->setThemesDirectory(m_directory.filePath("themes"));
    QVERIFY(PxProductPropertiesInitializer::setupModule());
}

void PxProductContextTest::defaultContextIsVoid()
{
    const PxProductContext context;
    QVERIFY(context.isVoidContext());
    QVERIFY(!context.isValid());
    QCOMPARE(context.themeId(), QString("normal"));
    QVERIFY(!PxProductContext(0, QString("a")).isVoidContext());
    QVERIFY(!PxProductContext(1).isVoidContext());
    QCOMPARE(PxProductContext(1, QString("no such theme")).theme(), PxTheme::voidTheme());
}

void PxProductContextTest::settersLeaveOtherHoldersAlone()
{
    const PxProductContext context(1);
    PxProductContext copy = context;
    copy.setTheme(PxThemeFactory::instance()->findTheme("a"));
    QVERIFY(context.isDefaultTheme());
    QVERIFY(context != copy);
    copy.setTheme(context.theme());
    QVERIFY(context == copy); // without sharing a record
    copy.setProductType(3);
    QCOMPARE(copy.spaceMagnitude().value(), PxSpaceMagnitude600);
    QCOMPARE(context.spaceMagnitude().value(), PxSpaceMagnitude900);
}

void PxProductContextTest::validityAsksTheThemesProducts()
{
    QVERIFY(PxProductContext(2, QString("a")).isValid());
    QVERIFY(!PxProductContext(1, QString("a")).isValid());
    QVERIFY(PxProductContext(1, PxTheme()).isValid()); // not whether the theme itself is valid
    QVERIFY(PxProductContext(13).isValid());           // nor whether the product has a file
    QVERIFY(!PxProductContext(99).isValid());
    QVERIFY(PxProductContext(13).startsWithLeftPage());
    QVERIFY(!PxProductContext(1).startsWithLeftPage());
}

void PxProductContextTest::similarProductsMayDiffer()
{
    QVERIFY(PxProductContext(1).isVerySimilarTo(PxProductContext(2)));
    QVERIFY(!PxProductContext(1).isVerySimilarTo(PxProductContext(3)));
    QVERIFY(!PxProductContext(1).isVerySimilarTo(PxProductContext(1, QString("a"))));
}

void PxProductContextTest::compatibleProductsAreThoseOfTheTheme()
{
    PxProductTypeList products = PxProductContext(1).compatibleProducts();
    std::sort(products.begin(), products.end());
    QCOMPARE(products, PxProductTypeList({1, 2}));
    QCOMPARE(PxProductContext(1, QString("a")).compatibleProductsWithTheSameSize(),
             PxProductTypeList({2}));
}

void PxProductContextTest::templatesFollowTheme()
{
    pxCheckAnswers(
        "theme;page type;double page",
        "normal;16;0=b normal;16;1=l a;16;0=ab a;16;1=l a;32;0=Weiss a;32;1=l",
        [](const QStringList &words) {
            const PxPageContext page{PxPageTypeEnum(words[1].toInt()), PxPageAlignmentLeft};
            return PxProductContext(1, words[0])
                .defaultTemplateForPage(words[2] == "1", page, true);
        });
}

void PxProductContextTest::printsReadably()
{
    const PxProductContext context(1, QString("a"));
    PxProductContextsGroup group({2, 1}, {});
    group.setIndirectProductDescription(PxIndirectProductDescription(context));
    PxProductGroupProperties prints;
    prints.setFotoIndex(QString("index"));
    QString text;
    QDebug(&text) << context << PxPageContext(PxPageType("spine,normal"), PxPageAlignmentRight)
                  << PxPageConstraint(PxPageType("normal,spine"), PxPageAlignmentNone) << group
                  << PxProductGroup(PxProductGroupBook)
                  << PxProductTypeDescriptionSpineData(
                         pxElement("<s width='9' maxfontheight='4'/>"))
                  << prints << 5;
    // Sets are sorted, and an empty one says that it admits all.
    QCOMPARE(text, QString("PxProductContext(PxProductType(1, \"BOOK\"), PxTheme(\"a\")) "
                           "PxPageContext(spine, normalpage(17), alignment 2) "
                           "PxPageConstraint(pages (spine(1), normalpage(16)), alignments all) "
                           "PxProductContextsGroup(products (PxProductType(1, \"BOOK\"), "
                           "PxProductType(2, \"TWIN\")), themes all, "
                           "PxIndirectProductDescription(landscape(2), targets (4))) "
                           "PxProductGroup(8, \"BOOK\") "
                           "PxProductTypeDescriptionSpineData(width 9, font height 4) "
                           "PxProductGroupProperties(\"index\", paper 0, border QColor(Invalid), "
                           "web album false) 5 "));
}

QTEST_GUILESS_MAIN(PxProductContextTest)
#include "PxProductContextTest.moc"
