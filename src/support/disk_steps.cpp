#include "support/disk_steps.h"

#include <algorithm>
#include <tuple>
#include <utility>

/// As the system's home platform lists names: by code unit, capitals and small letters as one.
static void Sort_By_Name(std::vector<Folder_Entry>& entries)
{
    std::vector<std::pair<QString, Folder_Entry>> raised;
    raised.reserve(entries.size());
    for (Folder_Entry& entry : entries) {
        QString key = entry.Name;
        for (QChar& letter : key)
            letter = letter.toUpper();
        raised.emplace_back(std::move(key), std::move(entry));
    }
    std::sort(raised.begin(), raised.end(), [](const auto& one, const auto& other) {
        return std::tie(one.first, one.second.Name) < std::tie(other.first, other.second.Name);
    });
    for (std::size_t i = 0; i < raised.size(); ++i)
        entries[i] = std::move(raised[i].second);
}

std::vector<Folder_Entry> List_Entries(const QString& folder, int& error)
{
    std::vector<Folder_Entry> entries = Read_Entries(folder, error);
    Sort_By_Name(entries);
    return entries;
}
