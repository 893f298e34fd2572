#include <PxPictures.h>

#include <QDir>
#include <QSize>

/** Writes a picture of each format into a directory; the sample catalogue has only PNGs. */
int main(int, char *argv[])
{
    using namespace PxPictures;
    const struct
    {
        const char *name;
        QByteArray picture;
    } rows[] = {
        {"interlaced.png", slowPng({9, 5})},
        {"endless.png",
         png({8, 8}, chunk("gAMA", QByteArray("\0\0\xB1\x8F", 4)), endlessPixels(300))},
        {"scans.jpg", jpegWithScans({40, 30}, 3)},
        {"comment.jpg", withSegments(jpeg({8, 8}), QByteArray("\xFF\xFE\0\3x", 5))},
        {"screen.gif", gif({20, 10}, {8, 8}, 64)},
        {"plain.bmp", bmp({2, -3}, 24, 0, QByteArray(24, 'x'))},
        {"packed.bmp", bmp({8, 2}, 8, 1, QByteArray("\4\1\0\3abc\0\0\2\1\0\4\2\0\1", 16))},
        {"icon.ico", ico(png({8, 8}))},
    };
    for (const auto &row : rows) {
        QFile file(QDir(QFile::decodeName(argv[1])).filePath(row.name));
        if (!file.open(QIODevice::WriteOnly) || file.write(row.picture) != row.picture.size())
            qFatal("cannot write %s", row.name);
    }
    return 0;
}
