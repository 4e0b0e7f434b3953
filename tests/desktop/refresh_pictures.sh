#!/bin/sh
# Draws the pictures of the screens anew: refresh_pictures.sh BUILD_FOLDER
set -eu
export QT_QPA_PLATFORM=offscreen QV_COMMONS_REFRESH_PICTURES=1
for pixels in 15 30; do
  QV_COMMONS_TEST_FONT_PIXELS=$pixels "$1/tests/desktop/age_gate_test" --gtest_filter='*Pictures*'
done
