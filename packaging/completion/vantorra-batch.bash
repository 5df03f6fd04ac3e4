# bash completion for vantorra-batch

_vantorra_batch_boxes='
    chk_StripOrigAudio chk_StripOrigAudioTitle chk_CustomAudioFilter chk_EngAudioOnly chk_AudioDelayAdjust chk_AddAudio
    chk_UseAudioOpts chk_ApplyDefaultAudioOpts chk_AudioPath chk_StripOrigSubs chk_StripOrigSubsTitle
    chk_CustomSubsFilter chk_EngSubsOnly chk_SubDefaults chk_SubForces chk_AddSubs chk_UseSubOpts
    chk_ApplyDefaultSubOpts chk_SubsPath chk_StripChaps chk_ReplaceChapters chk_ConvertTXT chk_ChaptersPath
    chk_VideoFrameRate chk_VideoFormatOptions chk_SetFileTitle chk_RemoveFileTitle chk_CustomFileTitle
    chk_SetVideoTitle chk_RemoveVideoTitle chk_CustomVideoTitle chk_RemoveAllTags chk_RemoveAllAttachments
    chk_AddAttachments chk_UseSubfolders chk_SplitVideos chk_RemoveUnicode chk_DeleteVideoAP'

_vantorra_batch()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= at
    # bash takes "=" for a word of its own.
    [[ $word == = ]] && word=
    [[ $before == = && $COMP_CWORD -ge 2 ]] && before=${COMP_WORDS[COMP_CWORD - 2]}
    for ((at = 1; at < COMP_CWORD; ++at)); do
        case ${COMP_WORDS[at]} in
            run | settings | identify | log) command=${COMP_WORDS[at]} ;;
        esac
    done

    COMPREPLY=()
    compopt +o default 2>/dev/null
    case $before in
        --videos | --target | --app-folder)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return
            ;;
        --tick | --untick)
            mapfile -t COMPREPLY < <(compgen -W "$_vantorra_batch_boxes" -- "$word")
            return
            ;;
        --set)
            return
            ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--videos --target --app-folder --set --tick --untick --dry-run --json
            --quiet --full --codec-private --version --help --help-all' -- "$word")
    elif [[ $command == identify ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    elif [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'run settings identify log' -- "$word")
    fi
}

complete -F _vantorra_batch vantorra-batch
