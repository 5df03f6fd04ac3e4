#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// The folder inside the target in which a careful batch lets mkvmerge write: what stands under a final name was made
/// here, is complete, and came there in one step. Each of the videos in work has one for itself.
///
/// It is noted in the program's folder before it is made, with the process that it belongs to. So the next run finds
/// what a kill or a power cut left behind, and touches nothing that isn't noted: docs/formats/working-folder.md.
class Working_Folder
{
  public:
    Working_Folder() = default;
    Working_Folder(const Working_Folder&) = delete;
    Working_Folder& operator=(const Working_Folder&) = delete;

    ~Working_Folder() { Remove(); }

    /// Notes and makes it, if that wasn't done yet. Returns why it couldn't be, in words; empty if it is there.
    QString Make(const QString& target, const QString& app_folder);

    /// Ends in a separator; empty before it is made.
    const QString& Path() const { return path_; }

    /// Tries a name as an empty file, which is removed at once: the file system may refuse it. Returns why, in words.
    QString Try_Name(const QString& name) const;

    /// The sizes of the files in it.
    std::int64_t Bytes() const;

    /// Removes what the video in work has left in it.
    void Empty() const;

    /// Removes it with all that is in it, and the note; it may be made anew.
    void Remove();

  private:
    QString path_;
    QString note_;
};

/// Looks for noted working folders whose process is gone and moves them to the trash. Returns a line for each, for
/// whoever starts the run; one that the trash refuses stays and is told again at the next start.
QStringList Clean_Up_Working_Folders(const QString& app_folder);
