#include "command/source_names.h"

#include "inspect/video_names.h"
#include "support/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

Source_Names Name_Source(const QString& video_path, const FileInfoList& streams)
{
    Source_Names names{Get_Base_Name(video_path), video_path, Get_Extension(video_path), {}};
    const auto file_record = std::find_if(streams.begin(), streams.end(), [](const FileInfo& record) {
        return record.StreamType.toLower() == "file_info"_L1;
    });
    if (file_record != streams.end())
        names.Title = file_record->Title;
    return names;
}

QString Video_Base_Name_Of(const QString& video_path)
{
    // Deliberate: the path isn't lowered here, so that One.MKV and Two.MKV both become "MKV".
    QString name;
    Is_Video_File(video_path, name);
    return name;
}

QString Output_Path_Of(const QString& target_path, const QString& video_base_name)
{
    return target_path + video_base_name + u".mkv"_s;
}
