#include "command/nothing_to_change.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// "0:0,0:1,0:2": all tracks of the file, as they lie in it.
static QString Own_Order(const Identified_File& source)
{
    QStringList entries;
    for (const Identified_Track& track : source.Tracks)
        entries += u"0:"_s + QString::number(track.Id);
    return entries.join(u',');
}

/// An option about a track says what the track says of itself.
static bool Is_As_It_Is(const QString& option, const QString& value, const Identified_Track& track)
{
    const auto says = [&value](bool flag) { return value == (flag ? "yes"_L1 : "no"_L1); };
    if (option == "--track-name"_L1)
        return value == track.Name;
    // A tag with a region ("pt-BR") would lose it.
    if (option == "--language"_L1)
        return value == track.Language && !track.Language_Tag.contains(u'-');
    if (option == "--default-track"_L1)
        return says(track.Default);
    if (option == "--forced-track"_L1)
        return says(track.Forced);
    return option == "--display-dimensions"_L1 && value == track.Display_Size;
}

static bool Keeps(const QString& option, const QString& value, const Identified_File& source)
{
    if (option == "--ui-language"_L1 || option == "--output"_L1)
        return true;
    if (option == "--title"_L1)
        return value == source.Title;
    if (option == "--track-order"_L1)
        return value == Own_Order(source);
    return std::any_of(source.Tracks.begin(), source.Tracks.end(), [&](const Identified_Track& track) {
        return value.section(u':', 0, 0) == QString::number(track.Id) &&
               Is_As_It_Is(option, value.section(u':', 1), track);
    });
}

/// An option that has no value leaves something out; the file may have none of it.
static bool Has_None_Of(const QString& option, const Identified_File& source)
{
    if (option == "--no-track-tags"_L1)
        return std::none_of(source.Tracks.begin(), source.Tracks.end(),
                            [](const Identified_Track& track) { return track.Has_Tags; });
    if (option == "--no-attachments"_L1)
        return source.Attachments.isEmpty();
    return option == "--no-chapters"_L1 && source.Chapters == 0;
}

bool Would_Change_Nothing(const QStringList& arguments, const Identified_File& source)
{
    int inputs = 0;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& option = arguments[i];
        if (option == "("_L1) {
            ++inputs;
            i += 2; // its path and the ")"
        } else if (option.startsWith("--no-"_L1)) {
            if (!Has_None_Of(option, source))
                return false;
        } else if (!Keeps(option, arguments.value(++i), source)) {
            return false;
        }
    }
    return inputs == 1 && source.Readable;
}
