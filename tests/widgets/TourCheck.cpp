// Checks a folder written by vxdemo's offscreen tour: every expected picture is in the index,
// exists, and shows something (a grab that failed comes out of one colour).
//   vxutil_tour_check DIR
#include <QDir>
#include <QFile>
#include <QImage>
#include <cstdio>

namespace {

bool ShowsSomething(const QImage& image) {
    if (image.width() < 50 || image.height() < 50) return false;  // null ones included
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            if (image.pixel(x, y) != image.pixel(0, 0)) return true;
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
    QStringList listed;
    for (const QString& line : QString::fromUtf8(index.readAll()).split(u'\n'))
        listed << line.section(u'\t', 0, 0);
    int failures = 0;
    for (const char* name : {"login", "accounts", "accounts-ports", "about", "main", "login-de",
                             "accounts-de", "accounts-ports-de", "about-de"}) {
        const QString file = QString::fromLatin1(name) + QStringLiteral(".png");
        const char* problem = !listed.contains(file)                           ? "not in the index"
                              : !ShowsSomething(QImage(folder.filePath(file))) ? "missing or blank"
                                                                               : nullptr;
        if (problem == nullptr) continue;
        std::fprintf(stderr, "%s.png: %s\n", name, problem);
        ++failures;
    }
    std::printf("%d pictures missing or blank\n", failures);
    return failures == 0 ? 0 : 1;
}
