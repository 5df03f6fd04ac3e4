#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

/// A growing text in memory of its own, for long logs and command lines: appending never touches the text that is
/// already there. Keeps its last change and can take it back once.
///
/// Positions count characters (UTF-16 units) from 1; lengths count characters. Bad positions do nothing and leave the
/// text and the undo record alone.
class clsStringBuilder
{
  public:
    enum class Undo_Kind
    {
        Nothing = 0,
        Append = 1,
        Insert = 2,
        Overwrite = 3,
        Remove = 4
    };
    /// How Find compares.
    enum class Compare
    {
        Exact = 0,
        Without_Case = 1
    };

    clsStringBuilder();
    clsStringBuilder(const clsStringBuilder& other);
    clsStringBuilder& operator=(const clsStringBuilder& other);
    clsStringBuilder(clsStringBuilder&&) noexcept = default;
    clsStringBuilder& operator=(clsStringBuilder&&) noexcept = default;
    ~clsStringBuilder() = default;

    /// The whole text.
    QString ToString() const;

    /// The same text by reference into `text`.
    void StringData(QString& text) const { text = ToString(); }

    /// The text where it lies, ended by a zero; null if empty; valid until the next change.
    const char16_t* ToStringPtr() const;
    QString ToStringLeft(std::ptrdiff_t length) const;
    QString ToStringMid(std::ptrdiff_t position, std::ptrdiff_t length) const;
    QString ToStringRight(std::ptrdiff_t length) const;

    /// Empties the text, forgets the last change and gives the memory back down to the initial size.
    void Clear();
    /// Append of the text, then Append of CR LF: two changes.
    void AppendNL(QStringView text);
    /// Nothing happens for an empty text.
    void Append(QStringView text);
    /// Text and CR LF in one change, also for an empty text.
    void AppendLine(QStringView text);
    void Insert(std::ptrdiff_t position, QStringView text);
    /// Replaces as many characters as `text` has; extends the text if it runs past the end.
    void Overwrite(std::ptrdiff_t position, QStringView text);
    /// A length past the end is cut.
    void Remove(std::ptrdiff_t position, std::ptrdiff_t length);

    /// Takes the last change back; a second call does nothing.
    void Undo();

    /// Each runs Undo only if the last change is of its kind, and tells whether it did.
    bool UndoAppend() { return Undo_If(Undo_Kind::Append); }

    bool UndoInsert() { return Undo_If(Undo_Kind::Insert); }

    bool UndoOverwrite() { return Undo_If(Undo_Kind::Overwrite); }

    bool UndoRemove() { return Undo_If(Undo_Kind::Remove); }

    std::ptrdiff_t Length() const { return static_cast<std::ptrdiff_t>(used_); }

    bool Is_Empty() const { return used_ == 0; }

    /// Bytes allocated, always whole pages.
    std::size_t Capacity() const { return capacity_ * sizeof(char16_t); }

    /// Looks for `text` from position `start` on, alone, or (with a delimiter) as one whole field of a delimited list;
    /// an empty text with a delimiter looks for an empty field. The position of the text, 0 if it isn't there.
    std::ptrdiff_t Find(std::ptrdiff_t start, QStringView text, QStringView delimiter = {},
                        Compare compare = Compare::Exact) const;

  private:
    void Reallocate(std::size_t characters);
    void Make_Room(std::size_t added);
    void Record(Undo_Kind kind, std::size_t position, std::size_t length);
    void Record(Undo_Kind kind, std::size_t position, std::size_t length, const QString& taken);
    bool Undo_If(Undo_Kind kind);

    QStringView View() const { return {buffer_.get(), static_cast<qsizetype>(used_)}; }

    /// Memory that the system can grow in place, which is what keeps long texts cheap.
    struct Free_Memory
    {
        void operator()(char16_t* memory) const { std::free(memory); }
    };

    std::unique_ptr<char16_t[], Free_Memory> buffer_;
    std::size_t capacity_ = 0; ///< in characters
    std::size_t used_ = 0;     ///< in characters, without the zero at the end
    Undo_Kind undo_kind_ = Undo_Kind::Nothing;
    std::size_t undo_position_ = 0; ///< from 0
    std::size_t undo_length_ = 0;
    QString undo_text_;
    bool in_undo_ = false;
};
