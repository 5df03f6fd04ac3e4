#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// File names written one behind the other without a separator, and the question whether a text occurs anywhere in
/// them, without regard to case. A suffix automaton: adding or asking costs in proportion to the one name, so a folder
/// of thousands of subtitles is no square.
class Joined_Names
{
  public:
    void Add(const QString& name);
    /// True for a text that lies within one name or across the borders of several; the empty text occurs everywhere.
    bool Contains(const QString& text) const;
    /// True for a name that was added in other letters, small for capital, and not in these.
    bool Differs_Only_In_Case(const QString& name) const;

  private:
    /// All places in the joined text where the same set of substrings ends.
    struct State
    {
        int Length = 0; ///< of the longest of its substrings
        int Link = -1;  ///< the state of the longest suffix that occurs in more places
        std::vector<std::pair<char16_t, int>> Next;

        int* Find(char16_t letter);
    };

    void Add_Letter(char16_t letter);

    QHash<QString, QStringList> names_; ///< as they were added, by their lowered form
    std::vector<State> states_{1};
    int last_ = 0;
};
