#pragma once

#include "state/job_options.h"

#include <QString>

/// The folders that steer a walk, each ending in a separator or empty. With "Include Subfolders" each folder below the
/// videos' folder is walked as it would be alone, and Options has its folders while that lasts.
struct Run_Folders
{
    QString Sub; ///< below the folders that the person chose; empty: these themselves
    QString Videos;
    QString Target;
    QString Audios;
    QString Subtitles;
    QString Chapters;
    QString Attachments;

    /// True if a companion in that folder (ending in a separator) goes with the videos of this walk.
    bool Read_From(const QString& folder) const;
};

/// The folders that are in force.
Run_Folders Folders_Of(const JobOptions& options);
/// Puts them in force.
void Use_Folders(const Run_Folders& folders, JobOptions& options);

/// Those of the folder `sub` (relative, ending in a separator) below `root`: the target's is the same sub-path, whether
/// it is there or not; a folder of companions is the same sub-path where that exists, else the chosen one itself.
Run_Folders Folders_Below(const Run_Folders& root, const QString& sub);
