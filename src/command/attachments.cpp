#include "command/attachments.h"

#include "command/companion_files.h"
#include "support/files.h"
#include "support/operator.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

void Find_Attachments(const QString& folder, AttachmentList& list, clsStringBuilder& faults, Operator& person)
{
    list.assign(1, Attachment());
    const qsizetype name_start = folder.lastIndexOf(Path_Separator) + 1;
    const QString prefix = folder.mid(name_start);
    for (const QString& name : List_Files(folder.left(name_start))) {
        if (!name.startsWith(prefix, Qt::CaseInsensitive) || !Match_File_Masks(name, Attachment_Masks) ||
            !Can_Be_Added(name, faults))
            continue;
        if (!list.back().FullPath.isEmpty())
            list.emplace_back();
        list.back() = {.Name = name, .MimeType = Mime_Type_Of(name), .FullPath = folder + name};
    }
    if (!list.front().FullPath.isEmpty())
        for (const Attachment& attachment : list)
            faults.AppendLine(u"-- Adding Attachment \""_s + As_One_Line(attachment.FullPath) + u'"');
    person.Pump_Events();
}

void Find_Attachments_Of_Video(const JobOptions& options, const QString& base_name, AttachmentList& list,
                               clsStringBuilder& faults, Operator& person)
{
    list.assign(1, Attachment());
    const QString titled = options.Path_Attachments + base_name;
    const QString own_folder = As_On_Disk(titled + u"_Attachments"_s + Path_Separator);
    if (!options.Use_Attachment_Subfolders)
        Find_Attachments(options.Path_Attachments, list, faults, person);
    else if (Folder_Exists(own_folder))
        Find_Attachments(own_folder, list, faults, person);
    else if (Folder_Exists(titled))
        Find_Attachments(titled, list, faults, person);
}

QString Mime_Type_Of(const QString& name)
{
    // Deliberate: the values to send, whatever a register of types says.
    static const std::array<std::pair<QString, QString>, 10> types = {{
        {u"ttf"_s, u"font/ttf"_s},
        {u"otf"_s, u"font/otf"_s},
        {u"ttc"_s, u"binary"_s},
        {u"gif"_s, u"image/gif"_s},
        {u"psd"_s, u"image/psd"_s},
        {u"eps"_s, u"image/eps"_s},
        {u"tif"_s, u"image/tif"_s},
        {u"jpg"_s, u"image/jpeg"_s},
        {u"jpeg"_s, u"image/jpeg"_s},
        {u"png"_s, u"image/png"_s},
    }};
    const QString extension = Get_Extension(name).toLower();
    const auto* const row =
        std::find_if(types.begin(), types.end(), [&](const auto& type) { return type.first == extension; });
    return row == types.end() ? QString() : row->second;
}

void Append_Attachment_Arguments(Command_Line& command, const AttachmentList& list, clsStringBuilder& faults)
{
    if (list.front().FullPath.isEmpty()) {
        faults.AppendLine(u"*** Add attachments is selected but no valid attachments were found"_s);
        return;
    }
    for (const Attachment& attachment : list) {
        // A name is its own argument, like a path, whatever quotes it holds.
        if (Command_Line::Is_Refused(attachment.Name))
            faults.AppendLine(Command_Line::Refused_Value(u" --attachment-name "_s, attachment.Name));
        else
            command.Add_Path(u" --attachment-name "_s, attachment.Name);
        command.Add_Option(u" --attachment-mime-type "_s, Quote_Path(attachment.MimeType));
        command.Add_Path(u" --attach-file "_s, attachment.FullPath);
    }
}
