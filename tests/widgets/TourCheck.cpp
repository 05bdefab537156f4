// Checks a folder written by vxdemo's offscreen tour: every expected picture is in the index,
// exists, and shows something (a grab that failed comes out of one colour).
//   vxutil_tour_check DIR
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSet>
#include <QTextStream>
#include <cstdio>

namespace {

const char* const kExpected[] = {
    "login.png",    "accounts.png",    "accounts-ports.png",    "about.png",    "main.png",
    "login-de.png", "accounts-de.png", "accounts-ports-de.png", "about-de.png",
};

bool ShowsSomething(const QImage& image) {
    if (image.isNull() || image.width() < 50 || image.height() < 50) return false;
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            if (image.pixel(x, y) != first) return true;
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: vxutil_tour_check DIR\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QFile index(folder.filePath(QStringLiteral("index.txt")));
    if (!index.open(QIODevice::ReadOnly | QIODevice::Text)) {
        std::fprintf(stderr, "no index.txt in %s\n", argv[1]);
        return 1;
    }
    QSet<QString> listed;
    QTextStream lines(&index);
    while (!lines.atEnd())
        listed.insert(lines.readLine().section(QLatin1Char('\t'), 0, 0));
    int failures = 0;
    for (const char* name : kExpected) {
        const QString file = QString::fromLatin1(name);
        const char* problem = !listed.contains(file)                           ? "not in the index"
                              : !ShowsSomething(QImage(folder.filePath(file))) ? "missing or blank"
                                                                               : nullptr;
        if (problem == nullptr) continue;
        std::fprintf(stderr, "%s: %s\n", name, problem);
        ++failures;
    }
    std::printf("%d of %zu pictures good\n", static_cast<int>(std::size(kExpected)) - failures,
                std::size(kExpected));
    return failures == 0 ? 0 : 1;
}
