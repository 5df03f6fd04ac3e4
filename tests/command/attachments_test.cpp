#include "command/attachments.h"

#include "command/companion_fixture.h"

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
};

TEST_F(Attachments, FontsAndPicturesOfTheFolderGoWithEveryVideo)
{
    for (const QString& name :
         {u"Font.TTF"_s, u"a.txt"_s, u".hidden.png"_s, u"My Font.otf"_s, u"ttf"_s, u"dir.png/x"_s})
        Write(u"att/"_s + name);
    EXPECT_EQ(Find(), Sorted({u"Font.TTF"_s, u".hidden.png"_s, u"My Font.otf"_s}));
    QStringList lines;
    for (const Attachment& attachment : List)
        lines += u"-- Adding Attachment \""_s + attachment.FullPath + u'"';
    EXPECT_EQ(Faults(), lines);
}

TEST_F(Attachments, EachExtensionHasItsType)
{
    const QString claims = u"ttf font/ttf,OTF font/otf,ttc binary,gif image/gif,psd image/psd,eps image/eps,"
                           "tif image/tif,JPG image/jpeg,jpeg image/jpeg,png image/png,bmp "_s;
    for (const QString& claim : claims.split(u','))
        EXPECT_EQ(Mime_Type_Of(u"a.b."_s + claim.section(u' ', 0, 0)), claim.section(u' ', 1));
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
    EXPECT_EQ(Find(), QStringList{Native(u"Movie_Attachments/first.png"_s)});
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
