# SPDX-License-Identifier: Apache-2.0
# bash: completion of tapeprint. The program itself says what may stand where.

# Cuts a line into words as the shell does, into the array "words"; the last is the one that is being typed. bash's own
# words end at "=" and ":", too, and keep their quotes. "quote" is the one that is open, "before" what of the last word
# stands before it.
_tapeprint_cut() {
    local text=$1 word='' isWord='' i letter
    words=() quote='' before=''
    for ((i = 0; i < ${#text}; i++)); do
        letter=${text:i:1}
        if [[ $quote == "$letter" ]]; then
            quote=''
        elif [[ $letter == \\ && $quote != "'" ]]; then
            ((++i))
            word+=${text:i:1}
        elif [[ -n $quote ]]; then
            word+=$letter
        elif [[ $letter == [\'\"] ]]; then
            quote=$letter before=$word isWord=1
        elif [[ $letter == [[:space:]] ]]; then
            [[ -n $isWord$word ]] && words+=("$word")
            word='' isWord=''
        elif [[ $letter == '~' && -z $isWord$word && ${text:i+1:1} == / ]]; then
            word=$HOME
        else
            word+=$letter
        fi
    done
    words+=("$word")
}

# What the program has for a question, with the printer that the line names so far.
_tapeprint_ask() {
    local printer=() i
    for ((i = 1; i < ${#words[@]} - 1; i++)); do # what is being typed names no printer yet
        case ${words[i]} in
        -d | --ppd | -h | -U) ((i + 2 < ${#words[@]})) && printer+=("${words[i]}" "${words[++i]}") ;;
        -[dhU]?* | --ppd=*) printer+=("${words[i]}") ;;
        esac
    done
    "${words[0]}" --complete "$1" "${printer[@]}" 2>/dev/null
}

# What may follow an argument: queue, option, time, file or text; nothing for one that takes no value.
_tapeprint_kind() {
    local word meaning
    while IFS=$'\t' read -r word meaning; do
        [[ $word == "$1" ]] && printf '%s' "$meaning"
    done < <(_tapeprint_ask arguments)
}

# Offers those of the words on standard input that, behind a text, begin with what is typed; a word may hold blanks.
_tapeprint_offer() {
    local typed=${words[${#words[@]} - 1]} kept=$before word meaning break
    # bash puts the word in the place of what follows the last "=" or ":", or the quote.
    for break in = :; do
        if [[ -z $quote && $COMP_WORDBREAKS == *$break* && $typed == *$break* ]]; then
            word=${typed%"${typed##*"$break"}"}
            ((${#word} > ${#kept})) && kept=$word
        fi
    done
    while IFS=$'\t' read -r word meaning; do
        word=$1$word
        [[ $word == "$typed"* ]] || continue
        word=${word#"$kept"}
        [[ -n $quote ]] || word=$(printf '%q' "$word")
        COMPREPLY+=("$word")
    done
}

_tapeprint() {
    COMPREPLY=()
    local line=${COMP_LINE:0:COMP_POINT} words quote before typed kind file
    _tapeprint_cut "$line"
    typed=${words[${#words[@]} - 1]}
    file=${line##*[[:space:]]} # as it stands in the line: bash looks for it
    if [[ $typed == --*=* ]]; then
        kind=$(_tapeprint_kind "${typed%%=*}")
        file=${file#*=}
    else
        kind=$(_tapeprint_kind "${words[${#words[@]} - 2]}")
    fi
    case $kind in
    queue | time) _tapeprint_offer '' < <(_tapeprint_ask "${kind}s") ;;
    option)
        if [[ $typed == *=* ]]; then
            _tapeprint_offer "${typed%%=*}=" < <(_tapeprint_ask "choices:${typed%%=*}")
        else
            compopt -o nospace 2>/dev/null
            _tapeprint_offer '' < <(_tapeprint_ask options)
        fi
        ;;
    text) ;;
    *)
        if [[ $typed == -* && $kind != file ]]; then
            _tapeprint_offer '' < <(_tapeprint_ask arguments)
        else
            compopt -o filenames 2>/dev/null
            local found
            while IFS= read -r found; do
                COMPREPLY+=("$found")
            done < <(compgen -f -- "$file")
        fi
        ;;
    esac
}

complete -F _tapeprint tapeprint
