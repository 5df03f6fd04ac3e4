#pragma once

#include "common/media.h"
#include "common/stand_in_tool.h"
#include "end_to_end/batch_process.h"

/// Eight videos at once: what concerns several of them is decided as if they came one after the other.
struct At_Once : Batch_Process, testing::Test
{
    At_Once()
    {
        for (int number = 1; number <= 8; ++number)
            Place(*this, Short_Video(), Video(number));
    }

    static QString Video(int number) { return u"videos/e%1.mkv"_s.arg(number); }

    /// A mkvmerge that does `ahead` before it is the real one; it answers questions at once.
    void Put_Ahead_Of_Mkvmerge(const QByteArray& ahead)
    {
        mkvmerge_ = Write_Stand_In(*this, u"tools/mkvmerge"_s,
                                   "case \"$1\" in -V|-J|--ident*) ;; *) " + ahead + ";; esac\nexec " +
                                       Tool_In_Script(u"mkvmerge"_s) + " \"$@\"\n");
    }

    Batch_Result Run_Eight(const QString& more = {})
    {
        return Batch_Process::Run(Choices() + QProcess::splitCommand(more));
    }

    void Start_Eight() { Start(Choices()); }

    /// How many ended so, by the last event.
    static int Ended(const Batch_Result& result, const QString& how)
    {
        return result.Events(u"finished"_s).value(0)[how].toInt();
    }

  protected:
    QString mkvmerge_;

  private:
    QStringList Choices() const
    {
        QStringList choices = QProcess::splitCommand(u"--json --careful --jobs 8 --set \"Menu/Log Verbosity=1\""_s);
        if (!mkvmerge_.isEmpty())
            choices += {u"--set"_s, u"Paths/System mkvmerge.exe Path="_s + mkvmerge_};
        return choices;
    }
};
