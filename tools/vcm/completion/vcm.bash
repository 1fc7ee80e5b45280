# Completes command lines of vcm in bash. The program itself knows its commands, options and fields.

_vcm() {
  local i word words=() IFS=$'\n'
  for ((i = 1; i <= COMP_CWORD; ++i)); do
    word=${COMP_WORDS[i]}
    # bash takes words apart at "=".
    if ((${#words[@]})) && [[ $word == = || ${words[-1]} == *= ]]; then
      words[-1]+=$word
    else
      words+=("$word")
    fi
  done
  words[-1]=${words[-1]#[\'\"]}
  # Names of files come by default; none where the program says that nothing fits.
  COMPREPLY=($("${COMP_WORDS[0]/#\~\//"$HOME"/}" --complete "${words[@]}" 2>/dev/null))
  if (($? == 1)); then
    compopt +o default 2>/dev/null
  fi
  if [[ ${COMPREPLY[0]-} == *= ]]; then
    compopt -o nospace 2>/dev/null
  fi
}

complete -o default -F _vcm vcm
