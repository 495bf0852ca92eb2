#!/bin/sh
# Installs what building TARVO needs when it is missing (Debian packages).
set -e
missing=""
command -v cmake >/dev/null 2>&1 || missing="$missing cmake"
command -v g++ >/dev/null 2>&1 || missing="$missing g++"
command -v make >/dev/null 2>&1 || missing="$missing make"
if [ "${1:-}" = "tests" ] && [ ! -f /usr/include/gtest/gtest.h ]; then missing="$missing libgtest-dev"; fi
if [ -n "$missing" ]; then
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq $missing
fi
