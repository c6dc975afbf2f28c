#!/usr/bin/env bash
# The long campaign against what is saved: signals at random moments of a save, two programs that store at once with a
# reader beside them, a full disk, a limit on the size of files. Prints figures; ends with 1 when anything was lost.
#
#     scripts/campagna_guasti.sh BUILD_DIR [SIGNALS] [STORES]      (2000 and 300 when not given)
set -u
qui=$(cd "$1" && pwd) segnali=${2:-2000} volte=${3:-300}
cli=$qui/programma/vaticlo-cli guasti=$qui/tests/guasti/vaticlo_guasti.so
lavoro=$(mktemp -d) && trap 'rm -rf "$lavoro"' EXIT
cartella=$lavoro/cartella male=0
numeri() { printf " $1%.0s" $(seq 55); }
riga() { printf '%-44s %s\n' "$1" "$2"; }
mancato() { [ "$1" = 0 ] || male=1; }
firma() { (cd "$cartella" && cksum archivion71.dat Metodi/*.dat 2>/dev/null); }
vaticlo() { "$cli" --cartella "$cartella" "$@" >/dev/null 2>&1; }
rimetti() { rm -rf "$cartella" && cp -r "$lavoro/pronta" "$cartella"; }

mkdir -p "$cartella" && vaticlo dimostrazione || { echo "dimostrazione non riuscita" >&2; exit 1; }
mv "$cartella" "$lavoro/pronta"
# A line is a command; eval keeps the quotes of its arguments.
comandi=("inserisci 14/03/2026$(numeri 90)" "modifica 7$(numeri 90)" "cancella 7" "importa '$lavoro/estrazioni.txt'"
  "metodo crea Nuovo" "metodo rinomina 'Metodo 1' Nuovo"
  "previsione modifica 'Metodo 1' 1 --ruote To --ambate 9" "metodo elimina 'Metodo 1'")
printf '2026/03/14\tBA\t1\t2\t3\t4\t5\n' >"$lavoro/estrazioni.txt"

## Signals, each at most 1 ms after one of the calls by which a command touches the folder.
rimetti
prima=$(firma)
for comando in "${comandi[@]}"; do
  rimetti
  eval "GUASTI_TRACCIA='$lavoro/traccia' GUASTI_CARTELLA='$cartella' LD_PRELOAD='$guasti' vaticlo $comando" ||
    { echo "non riesce: $comando" >&2; exit 1; }
  chiamate+=("$(wc -l <"$lavoro/traccia")")
  dopo+=("$(firma)")
done
rimetti
declare -A conto=([come prima]=0 [come dopo]=0 [a pezzi]=0 [detti e non fatti]=0 [finiti prima]=0)
for ((i = 0; i < segnali; ++i)); do
  c=$((RANDOM % ${#comandi[@]})) n=$((1 + RANDOM % chiamate[c]))
  segnale=$(printf '9\n2\n15\n1\n' | sed -n "$((1 + RANDOM % 4))p")
  eval "GUASTI='$n:s:$segnale:$((RANDOM % 1000))' GUASTI_CARTELLA='$cartella' LD_PRELOAD='$guasti' vaticlo ${comandi[c]}"
  esito=$? ora=$(firma)
  [ $esito -lt 128 ] && ((++conto[finiti prima]))
  if [ "$ora" = "${dopo[c]}" ]; then ((++conto[come dopo]))
  elif [ $esito = 0 ]; then ((++conto[detti e non fatti]))
  elif [ "$ora" = "$prima" ]; then ((++conto[come prima]))
  else ((++conto[a pezzi])); fi
  [ "$ora" = "$prima" ] || rimetti
done 2>/dev/null
riga "segnali (KILL, INT, TERM, HUP)" "$segnali, di cui arrivati dopo la fine ${conto[finiti prima]}"
for nome in "come prima" "come dopo" "a pezzi" "detti e non fatti"; do riga "  $nome" "${conto[$nome]}"; done
mancato "${conto[a pezzi]}" && mancato "${conto[detti e non fatti]}"

## Two programs store and rewrite, one reads. Every draw is all of one number unless two were mixed.
rm -rf "$cartella" && mkdir -p "$cartella"
vaticlo inserisci 14/03/2026 $(numeri 10)
for chi in 10 11; do
  for ((i = 0; i < volte; ++i)); do printf 'inserisci 14/03/2026%s\nmodifica 1%s\n' "$(numeri $chi)" "$(numeri $chi)"; done >"$lavoro/$chi"
done
for ((i = 0; i < volte; ++i)); do echo "estrazione 1"; done >"$lavoro/letture"
for ((i = 1; i <= 2 * volte + 1; ++i)); do echo "estrazione $i"; done >"$lavoro/tutte"
# How many draws are shown, how many of them hold more than one number, and how many of them are empty.
conta() { awk '/^Estrazione/ {if (e) {tutte++; miste += m} e = 1; m = 0; v = ""; next}
  {for (k = 2; k <= 6; ++k) {if (v == "") v = $k; if ($k != v) m = 1} if ($2 == 0) vuote++}
  END {if (e) {tutte++; miste += m} print tutte + 0, miste + 0, vuote / 11}'; }
vaticlo esegui "$lavoro/10" & uno=$!
vaticlo esegui "$lavoro/11" & due=$!
letture=0 lette_miste=0
while kill -0 $uno 2>/dev/null || kill -0 $due 2>/dev/null; do
  read -r quante miste _ < <("$cli" --cartella "$cartella" esegui "$lavoro/letture" | conta)
  letture=$((letture + quante)) lette_miste=$((lette_miste + miste))
done
wait $uno && wait $due || male=1
read -r quante miste perse < <("$cli" --cartella "$cartella" esegui "$lavoro/tutte" | conta)
riga "due programmi, salvataggi di ognuno" "$volte nuove e $volte rifatte"
riga "  estrazioni perse" "$perse di $quante"
riga "  estrazioni mescolate" "$miste"
riga "  letture a pezzi" "$lette_miste di $letture"
mancato "$perse" && mancato "$miste" && mancato "$lette_miste"

## No room: a limit on the size of files, then a full disk.
# Prints how many of the commands left the folder other than before, and how many told no failure.
senza_posto() {
  local rotti=0
  for comando in "${comandi[@]:0:5}" "${comandi[6]}"; do
    prima=$(firma)
    eval "vaticlo $comando" && ((++rotti))
    [ "$(firma)" = "$prima" ] || ((++rotti))
  done
  echo $rotti
}
rimetti
rotti=$(ulimit -f 8 && senza_posto)
riga "limite dei file a 8 KB: riusciti o a pezzi" "$rotti"
mancato "$rotti"
export -f senza_posto firma vaticlo
pieno=$(unshare -m bash -c '
  set -e; cli=$1 cartella=$2/disco; shift 2; comandi=("$@")
  mkdir "$cartella"; mount -t tmpfs -o size=1200k vaticlo "$cartella"; cp -r "$cartella/../pronta/." "$cartella"
  head -c 2M /dev/zero >"$cartella/resto" 2>/dev/null || true
  set +e; senza_posto' _ "$cli" "$lavoro" "${comandi[@]}" 2>/dev/null) || pieno="non provato (serve mount)"
riga "tmpfs pieno: riusciti o a pezzi" "$pieno"
[ "$pieno" = 0 ] || [[ $pieno = non* ]] || male=1

## btrfs writes beside even what goes over old bytes, so that room taken before is no promise: here less and less is left.
export chiamata_dopo=$(declare -p dopo)
quasi=$(unshare -m bash -c '
  set -e; cli=$1 lavoro=$2; shift 2; comandi=("$@"); eval "$chiamata_dopo"; PATH=$PATH:/sbin:/usr/sbin
  truncate -s 120M "$lavoro/btrfs"; mkfs.btrfs -q "$lavoro/btrfs" >&2; cartella=$lavoro/btr; mkdir "$cartella"
  mount -o loop "$lavoro/btrfs" "$cartella"; cp -r "$lavoro/pronta/." "$cartella"; prima=$(firma)
  set +e; rotti=0 riusciti=0 prove=0
  for ((c = 0; c < ${#comandi[@]}; ++c)); do
    for libere in 0 200 400 800 1600 3200; do
      rm -f "$cartella/resto" "$cartella/Metodi/Nuovo.dat"; sync -f "$cartella"
      cp "$lavoro/pronta/archivion71.dat" "$cartella/" && cp "$lavoro"/pronta/Metodi/*.dat "$cartella/Metodi/"
      for volta in 1 2 3; do cat /dev/zero >>"$cartella/resto"; sync -f "$cartella"; done 2>/dev/null
      truncate -s "-${libere}K" "$cartella/resto"; sync -f "$cartella"
      [ "$(firma)" = "$prima" ] || continue
      eval "vaticlo ${comandi[c]}"; esito=$? ora=$(firma); ((++prove))
      if [ $esito = 0 ]; then ((++riusciti)); [ "$ora" = "${dopo[c]}" ]; else [ "$ora" = "$prima" ]; fi || ((++rotti))
    done
  done
  umount "$cartella"; echo "$rotti di $prove, riusciti $riusciti"' _ "$cli" "$lavoro" "${comandi[@]}" 2>/dev/null) ||
  quasi="non provato (servono mount e mkfs.btrfs)"
riga "btrfs quasi pieno: a pezzi" "$quasi"
[[ $quasi = 0* ]] || [[ $quasi = non* ]] || male=1
exit $male
