#pragma once

#include <QFile>

/// Gives this process a trash of its own: a folder in the temporary folder, for what is behind Names_In_Trash.
void Use_Own_Trash();

/// While it lives that file can't go to the trash: there is none, or on Windows another program has the file open.
class Refused_By_Trash
{
  public:
    explicit Refused_By_Trash(const QString& path);
    Refused_By_Trash(const Refused_By_Trash&) = delete;
    Refused_By_Trash& operator=(const Refused_By_Trash&) = delete;
    ~Refused_By_Trash();

  private:
    QFile held_;
};
