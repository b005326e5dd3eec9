# Completion of the programs' options for bash.                                 -*- shell-script -*-

_tempora()
{
    local cur prev words cword split
    _init_completion -s || return

    case $prev in
        --export | --free | --week-of | --find | --clashes | --use)
            _filedir '@(pdf|csv|html|json|png|ics)'
            return
            ;;
        --settings)
            _filedir ini
            return
            ;;
        --sqlite | --mariadb-script)
            _filedir
            return
            ;;
        --size)
            COMPREPLY=($(compgen -W 'small middle large' -- "$cur"))
            return
            ;;
        --mode)
            COMPREPLY=($(compgen -W 'teaching exam' -- "$cur"))
            return
            ;;
        --week)
            COMPREPLY=($(compgen -W 'all A B' -- "$cur"))
            return
            ;;
        --day)
            COMPREPLY=($(compgen -W '0 1 2 3 4 5' -- "$cur"))
            return
            ;;
        --exam-week)
            COMPREPLY=($(compgen -W '1 2 3' -- "$cur"))
            return
            ;;
        --zone)
            COMPREPLY=($(compgen -W '0 1 2 3 4 5 6 7 8 9' -- "$cur"))
            return
            ;;
        --date)
            COMPREPLY=($(compgen -W "$(date +%F)" -- "$cur"))
            return
            ;;
        --show)
            COMPREPLY=($(compgen -W 'class teacher subject type invigilator' -- "$cur"))
            return
            ;;
        --refresh | --display-seconds | --display-refresh | --from | --to | --places | \
            --weeks-running | --room | --teacher | --class | --matter | --text | --tranche | \
            --department | --rooms-per-page | --subject | --page | --seed | --rooms | --classes | \
            --students | --teachers | --subjects | --periods)
            return
            ;;
    esac
    $split && return

    # Each program's own list, so that no option is missing here.
    COMPREPLY=($(compgen -W "$("$1" --help 2>/dev/null |
        sed -n 's/^ *\(-[a-z?], \)*\(--[a-z-]*\).*/\2/p')" -- "$cur"))
} && complete -F _tempora tempora tempora-demo tempora-setup
