# bash completion for vantorra-batch

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
            # The program knows its boxes.
            mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" --list-boxes 2>/dev/null)" -- "$word")
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
