#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

/// A file that is written whole or not at all. Its content goes into a file of another name in the same folder, which
/// takes the final name in one step once everything is on the disk; dropped ahead of that, it leaves nothing behind. A
/// file that is there keeps its content until then and its permissions for good, and where the name is a link, the file
/// that it leads to is the one that is replaced.
///
/// Every failure is the run-time error of the file operation; it names the final file, which stays as it was. Something
/// there that is no plain file is an error, too.
class Whole_File
{
  public:
    /// `more` may ask for QIODevice::Text: the platform's line ends.
    explicit Whole_File(const QString& path, QIODevice::OpenMode more = {});

    void Append(const QByteArray& bytes);
    /// All that was appended is on the disk when this returns.
    void Flush_To_Disk();
    /// Gives the file its name. Flush_To_Disk has to be called first.
    void Take_Its_Name();

  private:
    QString path_; ///< the final one
    QSaveFile file_;
};

/// Replaces a file whole or leaves it as it was.
void Write_Whole_File(const QString& path, const QByteArray& content, QIODevice::OpenMode more = {});
