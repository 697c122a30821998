# Completion for parabolt-cli: commands, options and the values that options take are those that its help
# tells.
_parabolt_cli() {
    local cur prev words cword
    _init_completion -n : || return
    # The command is what stands before the first option: one word, or two behind "clubs".
    local path=() word
    for word in "${words[@]:1:cword-1}"; do
        [[ $word == [a-z]* && (${#path[@]} -eq 0 || (${path[*]} == clubs)) ]] || break
        path+=("$word")
    done
    local help
    help=$(parabolt-cli "${path[@]}" --help 2>/dev/null)
    if [[ $prev == --* ]]; then
        # "  --wind-mph,--wind mph": one blank parts an option from what it takes, more from its meaning.
        local takes
        takes=$(sed -nE "s/^  ([^ ]*,)?$prev(,[^ ]*)? ([^ ].*)?\$/\3/p" <<<"$help")
        case $takes in
            *{*}*) takes=${takes#*\{} takes=${takes%%\}*}
                COMPREPLY=($(compgen -W "${takes//,/ }" -- "$cur")); return ;;
            FILE* | SESSION*) _filedir; return ;;
            NAME*) COMPREPLY=($(compgen -W "$(parabolt-cli clubs list --format csv |
                sed '1d;s/,.*//')" -- "$cur")); return ;;
            ?*) [[ $prev == --ball ]] && COMPREPLY=($(compgen -W '1 2 3 4' -- "$cur")); return ;;
        esac
    fi
    # What stands below "Subcommands:", or what the one argument of a study may be; without any, files.
    local choices
    choices=$(sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p
        /^  WHAT /s/.*{\(.*\)}.*/\1/p' <<<"$help" | tr , '\n')
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(grep -oE -- '^  -[^ ]+' <<<"$help" | grep -oE -- '--[a-z-]+')" -- "$cur"))
    elif [[ -n $choices ]]; then
        COMPREPLY=($(compgen -W "$choices" -- "$cur"))
    else
        _filedir
    fi
} && complete -F _parabolt_cli parabolt-cli
