#!/usr/bin/env bash
# The part of tools/try-package.sh that runs in the Debian made for it, as root; the session is that of a user.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

user=tester
home=/home/$user
data=$home/.local/share/tessivo
pictures=/try/pictures

fail() { echo "  NOT SO: $1"; snap failed; as_user /try/drive.py list || true; exit 1; }
as_user() { runuser -u $user -- env "${session[@]}" "$@"; }
snap() { as_user scrot -o "/tmp/$1.png" 2>/dev/null && cp "/tmp/$1.png" "$pictures/" || true; }
drive() { as_user /try/drive.py "$@" || fail "drive $*"; }
# Waits until the condition holds, for at most so many seconds.
within() {
    local end=$((SECONDS + $1)); shift
    until "$@"; do [ $SECONDS -lt $end ] || return 1; sleep 0.2; done
}
stage() { echo "$(printf '%4d s' $SECONDS)  $1"; }

windows() { as_user xdotool search --onlyvisible --name '^Tessivo$' 2>/dev/null; }
has_window() { [ -n "$(windows)" ]; }
no_program() { ! pgrep -x -u $user tessivo >/dev/null; }
has_helper() { pgrep -x -u $user tessivo-reminde >/dev/null; }
no_helper() { ! has_helper; }
helper_runs_the_installed_file() {
    local helper; helper=$(pgrep -x -u $user tessivo-reminde) && [ "/proc/$helper/exe" -ef /usr/bin/tessivo-reminders ]
}
shows_notification() { [ "$(as_user dunstctl count displayed)" -gt 0 ]; }
activate() { drive activate "$1"; }
close_window() {
    as_user xdotool windowactivate --sync "$(windows | tail -n 1)" key alt+F4
    within 180 no_program || fail "the program ends with its window"
}

start_session() {
    useradd --create-home $user
    mkdir -p $pictures
    install -d -m 0700 -o $user /tmp/runtime
    session=(HOME=$home USER=$user XDG_RUNTIME_DIR=/tmp/runtime XDG_CURRENT_DESKTOP=Openbox LANG=C.UTF-8
        LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 TZ=UTC)
    as_user Xvfb -displayfd 1 -screen 0 640x1000x24 -nolisten tcp >/try/display 2>/dev/null &
    within 180 test -s /try/display || fail "the display comes up"
    session+=("DISPLAY=:$(cat /try/display)")
    local address
    address=$(as_user dbus-daemon --session --fork --print-address)
    session+=("DBUS_SESSION_BUS_ADDRESS=$address")
    as_user openbox >/dev/null 2>&1 &
    as_user dunst >/dev/null 2>&1 &
}

# What a desktop does at login.
log_in() {
    local entry=/etc/xdg/autostart/org.tessivo.Tessivo.Reminders.desktop
    as_user sh -c "$(sed -n 's/^Exec=//p' $entry)" >/dev/null 2>&1 &
    within 180 has_helper || fail "the helper starts at login"
}

# An event in three minutes, through every step of the wizard.
add_event() {
    drive press "Not Now" # the second start asks for a rating
    drive field
    as_user xdotool type --delay 60 "Tea with Anna"
    drive see "Tea with Anna"
    snap title
    drive press Next
    drive press "All Day"
    # The minute's wheel goes round without the hour's.
    while [ "$(date +%-M)" -gt 55 ]; do sleep 1; done
    drive press ".*[0-9]+:[0-9]+.*[AP]M"
    drive raise "" 1
    drive raise "" 1
    drive raise "" 1
    snap date
    drive press Next
    drive press Allow
    drive press Reminder
    drive see "At time of event"
    snap reminder
    drive press Next
    drive see "Solid Colors"
    sleep 1 # the slide
    snap background
    drive press Done
    drive press Future
    drive see "Tea with Anna"
    snap list
}

stage "Installing"
apt-get update -qq
apt-get install -y -qq --no-install-recommends /try/tessivo.deb >/try/install.log 2>&1 ||
    { tail -n 20 /try/install.log; exit 1; }
echo "        $(grep -c '^Setting up' /try/install.log) packages came with it, tessivo $(dpkg-query -f '${Version}' -W tessivo)"
start_session
log_in

stage "The first start"
as_user sh -c "$(sed -n '/Desktop Action/q; s/^Exec=//p' /usr/share/applications/org.tessivo.Tessivo.desktop)" \
    >/tmp/first.log 2>&1 &
within 240 has_window || fail "the window opens"
drive begin
snap first
! grep -i -e qml -e warning /tmp/first.log || fail "the window opens without a warning"
close_window

stage "A new event, from the desktop's menu while the program is closed"
activate new-event
within 240 has_window || fail "New Event opens the window"
add_event
close_window

stage "Waiting for its reminder with the window closed"
within 400 shows_notification || fail "the reminder comes"
due=$SECONDS
snap notification
no_program || fail "the helper alone shows it"
as_user dunstctl action 0
within 240 has_window || fail "a click opens the window"
stage "A click opened the window, $((SECONDS - due)) s after the notification"
drive see "Tea with Anna"
snap clicked
close_window

stage "Upgrading"
has_helper || fail "the helper runs"
before=$(pgrep -x -u $user tessivo-reminde)
apt-get install -y -qq --no-install-recommends /try/tessivo-next.deb >/try/upgrade.log 2>&1 ||
    { tail -n 20 /try/upgrade.log; exit 1; }
within 180 helper_runs_the_installed_file || fail "the helper goes on as the new version"
[ "$(pgrep -x -u $user tessivo-reminde)" = "$before" ] || fail "the helper stays the same process"
echo "        tessivo $(dpkg-query -f '${Version}' -W tessivo), the helper goes on as the new file"

stage "Removing"
(cd "$data" && find . -type f ! -name '*-wal' ! -name '*-shm' -print0 | sort -z | xargs -0 sha256sum) >/try/before
apt-get remove -y -qq tessivo >/try/remove.log 2>&1 || { tail -n 20 /try/remove.log; exit 1; }
no_helper || fail "no helper runs"
for entry in /etc/xdg/autostart/*.desktop /usr/share/dbus-1/services/*.service /usr/share/applications/*.desktop; do
    [ -e "$entry" ] || continue
    grep -q -i tessivo "$entry" || continue
    program=$(sed -n 's/^TryExec=//p' "$entry") # a desktop passes over an entry whose TryExec is gone
    [ -n "$program" ] && [ ! -e "$program" ] || fail "$entry starts what is gone"
done
(cd "$data" && sha256sum --quiet -c /try/before) || fail "the user's data is untouched"
echo "        $(wc -l </try/before) files of the user's are as they were"
apt-get purge -y -qq tessivo >>/try/remove.log 2>&1
left=$(find /etc /usr /var/lib/dpkg/info -iname '*tessivo*' ! -path '/usr/share/doc/*')
[ -z "$left" ] || fail "nothing is left after a purge: $left"
stage "Nothing is left but the user's data"
