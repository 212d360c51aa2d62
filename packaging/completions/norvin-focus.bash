# bash completion for norvin-focus

_norvin_focus() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "start pause resume stop status tasks add agenda projects done export
            import block allow lists stats doctor --hidden --help --version" -- "$current")
        return
    fi
    case $previous in
        --phase) mapfile -t COMPREPLY < <(compgen -W "work break rearming" -- "$current"); return ;;
        --priority) mapfile -t COMPREPLY < <(compgen -W "low medium high" -- "$current"); return ;;
        --period) mapfile -t COMPREPLY < <(compgen -W "today week month year all" -- "$current"); return ;;
        --date) mapfile -t COMPREPLY < <(compgen -W "today tomorrow" -- "$current"); return ;;
        --minutes | --task | --project | --app | --site | --browser) return ;;
    esac
    local options=""
    case $command in
        start) options="--minutes --task --phase" ;;
        status) options="--json --follow" ;;
        tasks | projects | lists) options="--json" ;;
        add) options="--project --date --priority" ;;
        agenda) options="--date --json" ;;
        block | allow) options="--app --site --browser --remove" ;;
        stats) options="--period --json --csv" ;;
        export) options="--force" ;;
    esac
    if [[ $current == -* || -z $current ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    fi
    if [[ ($command == export || $command == import) && $current != -* ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _norvin_focus norvin-focus
