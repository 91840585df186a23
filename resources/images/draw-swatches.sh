#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Draws the swatches of the tape and ink colours beside this script, one <choice keyword>.tiff each. Needs ImageMagick.
# They are 64 x 32 and shown at 32 x 16, so that they stay sharp on dense screens; the border is seen on light and dark.
set -eu
cd "$(dirname "$0")"

# draw KEYWORD FILL...: a rounded piece of tape over what FILL makes (ImageMagick arguments for a 64 x 32 picture).
draw() {
  keyword=$1
  shift
  convert -size 64x32 "$@" -alpha set \
    \( -size 64x32 xc:black -fill white -draw 'roundrectangle 1,1 62,30 7,7' \) -alpha off -compose CopyOpacity -composite \
    -compose Over -fill none -stroke '#80808a' -strokewidth 2 -draw 'roundrectangle 1,1 62,30 7,7' \
    -depth 8 -compress zip -strip "TIFF:$keyword.tiff"
}

draw KsTapeColorWhite xc:'#ffffff'
draw KsTapeColorBlue xc:'#3d7fd6'
draw KsTapeColorRed xc:'#d8362f'
draw KsTapeColorYellow xc:'#f9d927'
draw KsTapeColorPink xc:'#f06fa8'
draw KsTapeColorClear pattern:checkerboard +level-colors '#c4c4cc,#ffffff'
draw KsTapeColorPastelBlue xc:'#b9dcf5'
draw KsTapeColorPastelRed xc:'#f6c1bd'
draw KsTapeColorDeepBlue xc:'#16307a'

draw KsInkColorBlack xc:'#111111'
draw KsInkColorBlue xc:'#1f5fc4'
draw KsInkColorRed xc:'#d8362f'
draw KsInkColorWhite xc:'#ffffff'
draw KsInkColorGold gradient:'#e9c85c-#9a741b'
draw KsInkColorSilver gradient:'#eceff1-#8b939a'
