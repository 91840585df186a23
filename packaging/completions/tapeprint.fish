# SPDX-License-Identifier: Apache-2.0
# fish: completion of tapeprint. The program itself says what may stand where.

# The words that the program has for a question, with the printer that the line names so far.
function __tapeprint_ask
    set -l words (commandline -opc)
    set -l printer
    for i in (seq 2 (count $words))
        if contains -- $words[$i] -d --ppd -h -U; and test $i -lt (count $words)
            set -a printer $words[$i] (string replace -r '^~/' "$HOME/" -- $words[(math $i + 1)])
        else if string match -qr -- '^(-[dhU].|--ppd=)' $words[$i]
            set -a printer (string replace -r -- '^--ppd=~/' "--ppd=$HOME/" $words[$i])
        end
    end
    tapeprint --complete $argv[1] $printer 2>/dev/null
end

function __tapeprint_after
    set -l words (commandline -opc)
    set -l previous $words[-1]
    tapeprint --complete arguments 2>/dev/null | string match -q -- $previous\t$argv[1]
end

function __tapeprint_options
    set -l current (commandline -ct)
    set -l parts (string split -m 1 = -- $current)
    if test (count $parts) -eq 2
        __tapeprint_ask choices:$parts[1] | string replace -r '^' $parts[1]=
    else
        __tapeprint_ask options
    end
end

complete -c tapeprint -n '__tapeprint_after queue' -f -a '(__tapeprint_ask queues)'
complete -c tapeprint -n '__tapeprint_after time' -f -a '(__tapeprint_ask times)'
complete -c tapeprint -n '__tapeprint_after option' -f -a '(__tapeprint_options)'
complete -c tapeprint -n '__tapeprint_after text' -f
# Behind "=" fish looks for files by itself.
complete -c tapeprint -n 'string match -qr -- "^-[^=]*\$" (commandline -ct)' -f -a '(tapeprint --complete arguments 2>/dev/null | string replace -r "\t.*" "")'
