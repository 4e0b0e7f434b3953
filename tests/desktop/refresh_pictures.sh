#!/bin/sh
# Draws the pictures of the screens anew: refresh_pictures.sh BUILD_FOLDER
set -eu
export QT_QPA_PLATFORM=offscreen QT_ENABLE_HIGHDPI_SCALING=0 QV_COMMONS_REFRESH_PICTURES=1
for dots in 96 192; do
  QT_FONT_DPI=$dots "$1/tests/desktop/age_gate_test" --gtest_filter='*AgeGatePictures*'
done
