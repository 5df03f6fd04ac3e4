#pragma once

#include "state/media_state.h"

#include <QString>

/// The names of the video in work that its command is made of.
struct Source_Names
{
    QString Base;      ///< base name of the path; the video title
    QString Path;      ///< as it goes on the command line
    QString Extension; ///< its case kept
    QString Title;     ///< the container's title; empty if there is none
};

Source_Names Name_Source(const QString& video_path, const FileInfoList& streams);

/// The name of the output, of the companions searched for, and of the file title: the base name, but for a video whose
/// extension isn't an accepted one in the case it has (Movie.AVI), that extension.
QString Video_Base_Name_Of(const QString& video_path);

/// The output: always a ".mkv" in the target folder, which ends in a separator. What stands there is overwritten.
QString Output_Path_Of(const QString& target_path, const QString& video_base_name);
