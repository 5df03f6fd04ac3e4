#include "fuzz.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

void Claim(bool holds, const char* claim, const QString& about)
{
    if (holds)
        return;
    std::fprintf(stderr, "This doesn't hold: %s\n%s\n", claim, about.toUtf8().constData());
    std::abort();
}

QString Text_Of(const std::uint8_t* bytes, std::size_t size)
{
    return QString::fromUtf8(QByteArrayView(bytes, static_cast<qsizetype>(size)));
}

QString Work_File(const QString& name)
{
    static const QTemporaryDir folder;
    Claim(folder.isValid(), "there is a folder to work in");
    return folder.filePath(name);
}

void Write_Work_File(const QString& path, const std::uint8_t* bytes, std::size_t size)
{
    QFile file(path);
    const auto length = static_cast<qint64>(size);
    Claim(file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char*>(bytes), length) == length,
          "the input can be written to a file", path);
}
