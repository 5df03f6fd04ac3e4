#include "support/disk_names.h"
#include "support/link_end.h"

#include <QFileInfo>
#include <filesystem>

namespace fs = std::filesystem;

std::optional<QString> End_Of_Links(const QString& path)
{
    constexpr int longest_chain = 40;
    std::error_code error;
    fs::path file = Native_Path(path);
    if (!fs::is_symlink(file, error))
        return std::nullopt;
    for (int steps = 0; steps < longest_chain; ++steps) {
        if (!fs::is_symlink(file, error)) {
            const fs::path end = fs::weakly_canonical(file.parent_path(), error) / file.filename();
            return Text_Of_Name(QByteArray::fromStdString(end.string()));
        }
        file = file.parent_path() / fs::read_symlink(file, error);
    }
    return QString();
}

QString Without_Links(const QString& folder)
{
    return QFileInfo(folder).canonicalFilePath();
}
