#!/usr/bin/env bash
# Cameras and a microphone for trials by hand, where there is no hardware: PipeWire with one camera ("TrialCamera"), a
# PulseAudio sink whose monitor is a microphone, and an MJPEG camera on the network. Ctrl+C takes them away. A camera
# that is pulled out, by killing what it prints, comes back after three seconds.
#
#   tools/trial-devices.sh            then, in another terminal, what it prints
#   tools/trial-devices.sh 8091       with another port for the network camera
#
# Needs pipewire, pipewire-bin, wireplumber, gstreamer1.0-pipewire, pulseaudio, dbus and ffmpeg.
set -euo pipefail

port=${1:-8090}
# Servers of its own: what the desktop has is neither used nor disturbed.
XDG_RUNTIME_DIR=$(mktemp -d "${TMPDIR:-/tmp}/kinalyx-trial.XXXXXX")
export XDG_RUNTIME_DIR
export DBUS_SESSION_BUS_ADDRESS=unix:path=$XDG_RUNTIME_DIR/bus

servers=()
camera=none network=none
# Stops the programs that this script has begun, and no others.
end() {
  trap - EXIT
  kill "${servers[@]}" "$camera" "$network" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$XDG_RUNTIME_DIR"
}
trap end EXIT
trap 'exit 0' INT TERM

begin() { "$@" >>"$XDG_RUNTIME_DIR/log" 2>&1 & }
gone() { ! kill -0 "$1" 2>/dev/null; }

begin dbus-daemon --session --nofork --address="$DBUS_SESSION_BUS_ADDRESS"
servers+=($!)
sleep 1
begin pipewire
servers+=($!)
begin wireplumber
servers+=($!)
begin pulseaudio --daemonize=no --exit-idle-time=-1 --use-pid-file=no -n -L module-native-protocol-unix \
  -L "module-null-sink sink_name=trial sink_properties=device.description=Trial"
servers+=($!)
sleep 1

cat <<TEXT
Start the program with       XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR ./run
Name the network camera      Phone http://127.0.0.1:$port/
Sound for the microphone     XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR paplay FILE.wav
Pull the camera out          kill \$(cat $XDG_RUNTIME_DIR/camera)
Take all away                Ctrl+C
TEXT

mkfifo "$XDG_RUNTIME_DIR/wishes"
exec 3<>"$XDG_RUNTIME_DIR/wishes"
pause=0
while true; do
  if gone "$camera" && [ $((pause--)) -le 0 ]; then
    # It is there as long as who made it, who is there as long as the pipe.
    pw-cli <"$XDG_RUNTIME_DIR/wishes" >>"$XDG_RUNTIME_DIR/log" 2>&1 &
    camera=$!
    echo "$camera" >"$XDG_RUNTIME_DIR/camera"
    echo "create-node spa-node-factory { factory.name=videotestsrc library.name=videotestsrc/libspa-videotestsrc" \
      "node.name=trial node.description=TrialCamera media.class=Video/Source }" >&3
    pause=2
  fi
  # It ends with each who looks.
  if gone "$network"; then
    begin ffmpeg -nostdin -v error -re -f lavfi -i testsrc=size=640x480:rate=30 -c:v mjpeg -q:v 3 -f mpjpeg \
      -listen 1 "http://127.0.0.1:$port/"
    network=$!
  fi
  sleep 1
done
