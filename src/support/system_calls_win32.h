#pragma once

#include <QString>
#include <memory>

/// What the Windows halves share: texts and paths as the system's calls take them, handles, error numbers.

/// A text as the calls take it; lives as long as the text.
inline const wchar_t* Wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

inline QString From_Wide(const wchar_t* text, qsizetype size = -1)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text), size);
}

/// A path in the long form, as every call that takes a path is given it.
class Wide_Path
{
  public:
    explicit Wide_Path(const QString& path);

    operator const wchar_t*() const { return Wide(text_); } // NOLINT(google-explicit-constructor): it's an argument

  private:
    QString text_;
};

/// An open handle of the system's (its HANDLE), closed at its end. Neither null nor the invalid one is ever held.
class System_Handle
{
  public:
    System_Handle() = default;
    explicit System_Handle(void* handle);

    explicit operator bool() const { return handle_ != nullptr; }

    void* get() const { return handle_.get(); }

    void reset() { handle_.reset(); }

  private:
    struct Closer
    {
        void operator()(void* handle) const;
    };

    std::unique_ptr<void, Closer> handle_;
};

/// What opening a path comes to: never keeps anybody from reading, writing, renaming or deleting the file meanwhile.
/// `access`, `creation` and `flags` as for CreateFileW; a folder can be opened, too.
System_Handle Open_Path(const QString& path, unsigned long access, unsigned long creation, unsigned long flags = 0);

/// The number that disk_steps.h has for an error of the system's.
int Number_Of_System_Error(unsigned long code);
/// The same for the last call that failed.
int Last_System_Error();

/// The system's English words for an error of its own, without the line break at their end; empty if it has none.
QString Words_Of_System_Error(unsigned long code);
