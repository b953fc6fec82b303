# Completion for fish. The program itself knows what may stand where: calvix complete.

function __calvix_complete
    set -l before (commandline -opc)
    set -l program $before[1]
    set -e before[1]
    set -l current (commandline -ct | string unescape)
    set -l arguments
    if test -n "$current"
        set arguments "--current=$current"
    end
    set -l lines ($program complete $arguments -- $before 2>/dev/null)
    for line in $lines[2..-1]
        echo $line
    end
    # Behind --save= the file's name begins after the sign.
    set -l sign (string match -r -- '^--[a-z-]+=' $current)
    set -l file (string replace -- "$sign" '' $current)
    switch $lines[1]
        case any
            string replace -r '^' -- "$sign" (__fish_complete_path $file)
        case scenarios
            string replace -r '^' -- "$sign" (__fish_complete_suffix $file .json)
        case folders
            string replace -r '^' -- "$sign" (__fish_complete_directories $file)
    end
end

complete -c calvix -f -a '(__calvix_complete)'
