#include "run/run_folders.h"

#include "support/paths.h"

bool Run_Folders::Read_From(const QString& folder) const
{
    const auto is_one = [&folder](const QString& other) { return folder.compare(other, Case_Of_Names) == 0; };
    return is_one(Videos) || is_one(Audios) || is_one(Subtitles) || is_one(Chapters) ||
           (!Attachments.isEmpty() && folder.startsWith(Attachments, Case_Of_Names));
}

Run_Folders Folders_Of(const JobOptions& options)
{
    return {.Sub = {},
            .Videos = options.Path_Videos,
            .Target = options.Path_Target,
            .Audios = options.Path_Audios,
            .Subtitles = options.Path_Subtitles,
            .Chapters = options.Path_Chapters,
            .Attachments = options.Path_Attachments};
}

void Use_Folders(const Run_Folders& folders, JobOptions& options)
{
    options.Path_Videos = folders.Videos;
    options.Path_Target = folders.Target;
    options.Path_Audios = folders.Audios;
    options.Path_Subtitles = folders.Subtitles;
    options.Path_Chapters = folders.Chapters;
    options.Path_Attachments = folders.Attachments;
}

Run_Folders Folders_Below(const Run_Folders& root, const QString& sub)
{
    const auto companions = [&sub](const QString& chosen) {
        return !chosen.isEmpty() && Folder_Exists(chosen + sub) ? chosen + sub : chosen;
    };
    return {.Sub = sub,
            .Videos = root.Videos + sub,
            .Target = root.Target + sub,
            .Audios = companions(root.Audios),
            .Subtitles = companions(root.Subtitles),
            .Chapters = companions(root.Chapters),
            .Attachments = companions(root.Attachments)};
}
