# bash completion for vantorra-batch. The program itself names its options, boxes, keys and their values.

_vantorra_batch_list() {
    "${COMP_WORDS[0]/#\~/$HOME}" --complete "$@" 2>/dev/null
}

# Offers the lines of standard input that begin with $1, in the quoting that was begun with $2; $3 goes behind each.
_vantorra_batch_offer() {
    local line
    while IFS= read -r line; do
        [[ $line == "$1"* ]] || continue
        if [[ -n $2 ]]; then
            COMPREPLY+=("$2$line$3")
        else
            COMPREPLY+=("$(printf '%q' "$line")$3")
        fi
    done
}

_vantorra_batch()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= key= quote= folder= at
    for ((at = 1; at < COMP_CWORD; ++at)); do
        case ${COMP_WORDS[at]} in
            run | settings | identify | log | journal | presets) command=${COMP_WORDS[at]} ;;
            --app-folder)
                folder=${COMP_WORDS[at + 1]}
                [[ $folder == = ]] && folder=${COMP_WORDS[at + 2]}
                ;;
        esac
    done
    # bash takes "=" for a word of its own: --set KEY = VALUE, or --tick = NAME.
    [[ $word == = ]] && word= && before== && ((++COMP_CWORD))
    if [[ $before == = && $COMP_CWORD -ge 2 ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
        if [[ $before != -* && $COMP_CWORD -ge 3 ]]; then
            key=$before
            before=${COMP_WORDS[COMP_CWORD - 3]}
            [[ $before == = && $COMP_CWORD -ge 4 ]] && before=${COMP_WORDS[COMP_CWORD - 4]}
        fi
    fi
    # What was typed in quotes or with backslashes, plain.
    [[ $word == [\"\']* ]] && quote=${word:0:1} && word=${word:1}
    [[ -z $quote ]] && word=${word//\\/}
    key=${key//\\/}
    key=${key#[\"\']}

    COMPREPLY=()
    compopt +o default 2>/dev/null
    case $before in
        --videos | --target | --app-folder)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return
            ;;
        --jobs)
            mapfile -t COMPREPLY < <(compgen -W "auto 1 2 4 8" -- "$word")
            return
            ;;
        --tick | --untick)
            mapfile -t COMPREPLY < <(compgen -W "$(_vantorra_batch_list boxes)" -- "$word")
            return
            ;;
        --preset)
            folder=${folder//[\\\"\']/}
            folder=${folder/#\~/$HOME}
            _vantorra_batch_offer "$word" "$quote" '' < <(_vantorra_batch_list presets --app-folder "$folder")
            return
            ;;
        --set)
            # In quotes the whole assignment is one word.
            if [[ -n $quote && $word == *=* ]]; then
                _vantorra_batch_offer "$word" "$quote" '' \
                    < <(_vantorra_batch_list "values:${word%%=*}" | sed "s|^|${word%%=*}=|")
            elif [[ -n $key ]]; then
                _vantorra_batch_offer "$word" '' '' < <(_vantorra_batch_list "values:$key")
            else
                compopt -o nospace 2>/dev/null
                _vantorra_batch_offer "$word" "$quote" = < <(_vantorra_batch_list keys)
            fi
            return
            ;;
        --only | --leave-out | --shard)
            return
            ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_vantorra_batch_list options)" -- "$word")
    elif [[ $command == identify ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    elif [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_vantorra_batch_list commands)" -- "$word")
        compopt -o filenames 2>/dev/null
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <([[ -n $word ]] && compgen -d -- "$word")
    elif [[ $command == run ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    fi
}

complete -F _vantorra_batch vantorra-batch
