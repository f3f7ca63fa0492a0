# Called by bench/peers with the medians ("scale peer seconds"), the names of the peers and the file to draw.
set terminal svg size 900,420 font "sans-serif,13" background "white"
set output output_file
set logscale xy
set grid linecolor "#dddddd"
set border 3
set tics nomirror
set ylabel "seconds of a save"
set style line 1 linecolor "#888888" linewidth 2 pointtype 7
set style line 2 linecolor "#007aff" linewidth 4 pointtype 7
set style line 3 linecolor "#2e9e44" linewidth 2 pointtype 5
set style line 4 linecolor "#2e9e44" linewidth 2 pointtype 4
set style line 5 linecolor "#c2410c" linewidth 2 pointtype 9
set style line 6 linecolor "#7c3aed" linewidth 2 pointtype 11
values(unit, peer) = sprintf("< awk '$2 == \"%s\" && sub(/%s$/, \"\", $1)' %s | sort -n", peer, unit, medians)
set multiplot layout 1,2
set key left top
set xlabel "MB, four fifths of it pictures"
set xrange [40:2500]
plot for [i = 1:words(peers)] values("MB", word(peers, i)) using 1:3 with linespoints linestyle i title word(peers, i)
set key off
set xlabel "files of 1 to 16 KB"
set xrange [800:60000]
plot for [i = 1:words(peers)] values("files", word(peers, i)) using 1:3 with linespoints linestyle i title word(peers, i)
