# Completion for parabolt-cli: the commands and options are those that its help tells.
_parabolt_cli() {
    local cur prev words cword
    _init_completion -n : || return
    case $prev in
        --format) COMPREPLY=($(compgen -W 'csv json table' -- "$cur")); return ;;
        --kind) COMPREPLY=($(compgen -W 'launch swing' -- "$cur")); return ;;
        --to) COMPREPLY=($(compgen -W 'clb csv json' -- "$cur")); return ;;
        --ball) COMPREPLY=($(compgen -W '1 2 3 4' -- "$cur")); return ;;
        --clubs) _filedir; return ;;
        --*-[a-z]*) return ;; # a number
    esac
    local path=() word
    for word in "${words[@]:1:cword-1}"; do
        [[ $word == [a-z]* && ${#path[@]} -lt 2 ]] || break
        path+=("$word")
    done
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(parabolt-cli "${path[@]}" --help 2>/dev/null |
            grep -oE -- '--[a-z-]+')" -- "$cur"))
    elif [[ ${path[0]} == study && ${#path[@]} -eq 1 ]]; then
        COMPREPLY=($(compgen -W 'launch spin loft' -- "$cur"))
    else
        # What stands below "Subcommands:"; without any, files.
        local commands
        commands=$(parabolt-cli "${path[@]}" --help 2>/dev/null |
            sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
        [[ -n $commands ]] && COMPREPLY=($(compgen -W "$commands" -- "$cur")) || _filedir
    fi
} && complete -F _parabolt_cli parabolt-cli
