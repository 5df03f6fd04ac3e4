#include "command/joined_names.h"

int* Joined_Names::State::Find(char16_t letter)
{
    for (auto& [its_letter, target] : Next)
        if (its_letter == letter)
            return &target;
    return nullptr;
}

void Joined_Names::Add_Letter(char16_t letter)
{
    const int added = static_cast<int>(states_.size());
    states_.push_back({.Length = states_[static_cast<std::size_t>(last_)].Length + 1, .Link = 0, .Next = {}});
    int at = last_;
    last_ = added;
    const auto state = [&](int number) -> State& { return states_[static_cast<std::size_t>(number)]; };
    while (at >= 0 && state(at).Find(letter) == nullptr) {
        state(at).Next.emplace_back(letter, added);
        at = state(at).Link;
    }
    if (at < 0)
        return;
    const int target = *state(at).Find(letter);
    if (state(target).Length == state(at).Length + 1) {
        state(added).Link = target;
        return;
    }
    // The target also stands for longer substrings, which don't end here: the shorter ones get a state of their own.
    const int split = static_cast<int>(states_.size());
    State copy = state(target);
    copy.Length = state(at).Length + 1;
    states_.push_back(std::move(copy));
    for (; at >= 0; at = state(at).Link) {
        int* next = state(at).Find(letter);
        if (next == nullptr || *next != target)
            break;
        *next = split;
    }
    state(target).Link = split;
    state(added).Link = split;
}

void Joined_Names::Add(const QString& name)
{
    const QString lowered = name.toLower();
    names_[lowered] += name;
    for (const QChar letter : lowered)
        Add_Letter(letter.unicode());
}

bool Joined_Names::Differs_Only_In_Case(const QString& name) const
{
    const auto found = names_.constFind(name.toLower());
    return found != names_.constEnd() && !found->contains(name);
}

bool Joined_Names::Contains(const QString& text) const
{
    std::size_t at = 0;
    for (const QChar letter : text.toLower()) {
        const auto& next = states_[at].Next;
        std::size_t place = 0;
        while (place < next.size() && next[place].first != letter.unicode())
            ++place;
        if (place == next.size())
            return false;
        at = static_cast<std::size_t>(next[place].second);
    }
    return true;
}
