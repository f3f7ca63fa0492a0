# Called by bench/peers with the medians ("scale peer seconds"), the names of the peers and the file to draw.
set terminal svg size 900,400 font "sans-serif,12" background "white"
set output output_file
set multiplot layout 1,2
set logscale xy
set grid
set ylabel "seconds"
set key top left
values(unit, peer) = sprintf("< awk '$2 == \"%s\" && sub(/%s$/, \"\", $1)' %s | sort -n", peer, unit, medians)
set xlabel "MB"
plot for [peer in peers] values("MB", peer) using 1:3 with linespoints title peer
set xlabel "files"
plot for [peer in peers] values("files", peer) using 1:3 with linespoints title peer
