# SPDX-License-Identifier: Apache-2.0
# bash: completion of tapeprint. The program itself says what may stand where.

# The words that the program has for a question, with the printer that the line names so far.
_tapeprint_ask() {
    local printer=() i
    for ((i = 1; i < COMP_CWORD - 1; i++)); do # what is being typed names no printer yet
        case ${COMP_WORDS[i]} in
        -d | --ppd | -h | -U) printer+=("${COMP_WORDS[i]}" "${COMP_WORDS[i + 1]-}") ;;
        esac
    done
    "${COMP_WORDS[0]}" --complete "$1" "${printer[@]}" 2>/dev/null
}

# Offers those of the words on standard input that begin with a text; a word may hold blanks.
_tapeprint_offer() {
    local word meaning
    while IFS=$'\t' read -r word meaning; do
        [[ $word == "$1"* ]] && COMPREPLY+=("$(printf '%q' "$word")")
    done
}

_tapeprint() {
    COMPREPLY=()
    # bash cuts words at "=" and ":"; what counts is what stands between blanks.
    local line=${COMP_LINE:0:COMP_POINT} current previous kind
    current=${line##*[[:space:]]}
    previous=${line%"$current"}
    previous=${previous%"${previous##*[![:space:]]}"}
    previous=${previous##*[[:space:]]}
    kind=$(_tapeprint_ask arguments | while IFS=$'\t' read -r word meaning; do
        [[ $word == "$previous" ]] && printf '%s' "$meaning"
    done)
    case $kind in
    queue | time) _tapeprint_offer "$current" < <(_tapeprint_ask "${kind}s") ;;
    option)
        if [[ $current == *=* ]]; then
            _tapeprint_offer "${current#*=}" < <(_tapeprint_ask "choices:${current%%=*}")
        else
            compopt -o nospace 2>/dev/null
            _tapeprint_offer "$current" < <(_tapeprint_ask options)
        fi
        ;;
    text) ;;
    *)
        if [[ $current == -* && $kind != file ]]; then
            _tapeprint_offer "$current" < <(_tapeprint_ask arguments)
        else
            compopt -o filenames 2>/dev/null
            local file
            while IFS= read -r file; do
                COMPREPLY+=("$file")
            done < <(compgen -f -- "$current")
        fi
        ;;
    esac
}

complete -F _tapeprint tapeprint
