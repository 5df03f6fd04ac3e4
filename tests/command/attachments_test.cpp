#include "command/attachments.h"

#include "command/companion_fixture.h"

using namespace Qt::StringLiterals;

struct Attachments : Companion_Test
{
    Attachments()
    {
        Prog.Options.Path_Attachments = Path(u"att/"_s);
        QDir().mkpath(Path(u"att"_s));
    }

    AttachmentList List{1};

    /// Full paths of what is attached to Movie, sorted, the attachments folder taken out.
    QStringList Find()
    {
        Find_Attachments_Of_Video(Prog.Options, u"Movie"_s, List, Prog.Logs.Log_Faults, Person);
        QStringList paths;
        for (const Attachment& attachment : List)
            paths += QString(attachment.FullPath).remove(Prog.Options.Path_Attachments);
        return Sorted(paths);
    }

    QString Command()
    {
        Command_Line command;
        Append_Attachment_Arguments(command, List, Prog.Logs.Log_Faults);
        return command.Text().remove(Prog.Options.Path_Attachments);
    }
};

TEST_F(Attachments, EachExtensionHasItsType)
{
    const std::pair<QString, QString> claims[] = {
        {u"ttf"_s, u"font/ttf"_s},  {u"OTF"_s, u"font/otf"_s},   {u"ttc"_s, u"binary"_s},
        {u"gif"_s, u"image/gif"_s}, {u"psd"_s, u"image/psd"_s},  {u"eps"_s, u"image/eps"_s},
        {u"tif"_s, u"image/tif"_s}, {u"JPG"_s, u"image/jpeg"_s}, {u"jpeg"_s, u"image/jpeg"_s},
        {u"png"_s, u"image/png"_s}, {u"bmp"_s, u""_s},
    };
    for (const auto& [extension, type] : claims)
        EXPECT_EQ(Mime_Type_Of(u"a.b."_s + extension), type) << extension.toStdString();
}

TEST_F(Attachments, TitledSubfoldersAreLookedForInOrder)
{
    Prog.Options.Use_Attachment_Subfolders = true;
    Write(u"att/movieposter.png"_s);
    Write(u"att/other.png"_s);
    EXPECT_EQ(Find(), QStringList{u""_s});
    // The plain titled folder isn't entered: the files beside it whose names begin with the title are named instead,
    // by paths that don't exist.
    Write(u"att/Movie/inside.png"_s);
    EXPECT_EQ(Find(), QStringList{u"Moviemovieposter.png"_s});
    Write(u"att/Movie_Attachments/first.png"_s);
    EXPECT_EQ(Find(), QStringList{u"Movie_Attachments/first.png"_s});
}

TEST_F(Attachments, ANameThatMkvmergeWouldNotTakeForOneIsLeftOutAndTheFileIsStillAttached)
{
    const auto attachment = [&](const QString& name) {
        return Attachment{.Name = name, .MimeType = u"image/png"_s, .FullPath = Path(u"att/"_s) + name};
    };
    List = {attachment(u"a b.png"_s), attachment(u"@x.png"_s), attachment(u"c\"\"\"d.png"_s)};
    Command_Line command;
    Append_Attachment_Arguments(command, List, Prog.Logs.Log_Faults);
    EXPECT_EQ(command.Text().remove(Prog.Options.Path_Attachments).replace(Path(u"att/a b"_s), u"a b"_s),
              u" --attachment-name \"a b.png\" --attachment-mime-type image/png --attach-file \"a b.png\""
              " --attachment-mime-type image/png --attach-file @x.png --attachment-name c\"\"\"d.png"
              " --attachment-mime-type image/png --attach-file c\"\"\"d.png"_s);
    EXPECT_EQ(command.Arguments().mid(6, 4),
              QStringList({u"--attachment-mime-type"_s, u"image/png"_s, u"--attach-file"_s, Path(u"att/@x.png"_s)}));
    EXPECT_EQ(command.Arguments().at(11), u"c\"\"\"d.png"_s);
    ASSERT_EQ(Faults().size(), 1);
    EXPECT_TRUE(Faults().front().startsWith(u"*** --attachment-name is left out"_s));
}
