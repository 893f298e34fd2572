// In which colours is the mug sold, and on which papers the photo book? With --screenshot FILE the
// program saves a picture of its window instead of showing it.
#include <description/PxProductPropertiesInitializer.h>
#include <variants/PxProductTypeVariationListModel.h>
#include <variants/PxProductVariantIdentifiers.h>
#include <variants/PxProductVariantListModel.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QGridLayout>
#include <QLabel>
#include <QListView>

static QListView *addList(QGridLayout *layout, const QString &title, QAbstractItemModel *model)
{
    auto *view = new QListView;
    view->setModel(model);
    view->setIconSize(QSize(32, 32));
    view->setMinimumWidth(view->sizeHintForColumn(0) + 4 * view->frameWidth());
    const int column = layout->count() / 2;
    layout->addWidget(new QLabel(title), 0, column);
    layout->addWidget(view, 1, column);
    return view;
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Writes the window to a PNG file."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.addHelpOption();
    parser.process(application);
    PxProductPropertiesInitializer::setupModule(); // reads the product files

    const PxProductType mug(QStringLiteral("CUP2"));
    const auto *identifiers = PxProductVariantIdentifiers::instance();
    const QString standard = identifiers->variantName(mug, identifiers->defaultVariant(mug));
    PxProductVariantListModel colors(mug);
    PxProductTypeVariationListModel papers(
        PxProductContext(PxProductType(QStringLiteral("BOOK_A4_PORTRAIT"))),
        PxProductComparationAllButPaperType);

    QWidget window;
    window.setWindowTitle(QStringLiteral("Varianten"));
    auto *layout = new QGridLayout(&window);
    const QString title = QStringLiteral("%1 (Standard: %2)");
    addList(layout, title.arg(identifiers->variantDescription(mug), standard), &colors);
    addList(layout, QStringLiteral("Papier"), &papers)
        ->setCurrentIndex(papers.indexOfCurrentProduct());
    window.resize(700, 260);

    if (parser.isSet(screenshot))
        return window.grab().save(parser.value(screenshot), "PNG") ? 0 : 1;
    window.show();
    return QApplication::exec();
}
