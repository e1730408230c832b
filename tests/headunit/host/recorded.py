#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Records what the unit plays on devices of a sound server of its own, and has scipy judge it.

usage: recorded.py HEADUNIT FAKELOGIND
"""
import contextlib
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import numpy as np
import scipy.signal
from scipy.io import wavfile

LEVEL = 0.995  # of the tone, just below full scale
PATIENCE = 120  # s
TRIES = 8  # a machine that stops the server for a moment leaves a hole in the recording: then again
SIX = "front-left,front-right,rear-left,rear-right,side-left,side-right"

headunit, fake_logind = sys.argv[1:]
failures = []


def check(what, decibels, limit):
    verdict = "" if decibels <= limit else "  MISSED"
    print(f"{what:60} {decibels:7.1f} dB, limit {limit}{verdict}", flush=True)
    if not decibels <= limit:
        failures.append(what)


class Server:
    """A sound server without a sound card."""

    def __init__(self, folder):
        self.folder = folder
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith("PULSE_")}
        self.environment.update({name: str(folder) for name in ("HOME", "TMPDIR", "XDG_RUNTIME_DIR")}, LC_ALL="C")
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm",
             "-L", f"module-native-protocol-unix auth-anonymous=1 socket={folder}/server"], env=self.environment)
        self.environment.update(PULSE_SERVER=f"unix:{folder}/server", QT_QPA_PLATFORM="offscreen")
        wait_for(lambda: "Server Name" in self.control("info"))

    def control(self, *arguments):
        return subprocess.run(["pactl", *arguments], env=self.environment, text=True, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def plug_in(self, name, channels, rate, sample_format):
        self.control("load-module", "module-null-sink", f"sink_name={name}", f"channels={len(channels.split(','))}",
                     f"channel_map={channels}", f"rate={rate}", f"format={sample_format}")

    def unplug_all(self):
        self.control("unload-module", "module-null-sink")

    def end(self):
        self.process.terminate()
        self.process.wait()


def wait_for(condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            sys.exit("waited in vain")
        time.sleep(0.05)


class Recording:
    """A recording of a device from now on; its front left channel."""

    def __init__(self, server, device, channels, rate, sample_format):
        self.count = len(channels.split(","))
        self.type = {"float32le": np.float32, "s16le": np.int16}[sample_format]
        self.scale = 1 if self.type is np.float32 else 32768
        self.path = server.folder / "recording.raw"
        self.file = self.path.open("wb")
        self.process = subprocess.Popen(
            ["parec", "--raw", f"--format={sample_format}", f"--rate={rate}", f"--channels={self.count}",
             f"--channel-map={channels}", "--no-remix", "--latency-msec=20", f"--device={device}.monitor"],
            env=server.environment, stdout=self.file)

    def samples(self):
        data = self.path.read_bytes()
        frame = self.count * np.dtype(self.type).itemsize
        return np.frombuffer(data[:len(data) // frame * frame], self.type)[::self.count].astype(float) / self.scale

    def end(self):
        self.process.terminate()
        self.process.wait()
        self.file.close()


@contextlib.contextmanager
def playing(server, root, rate, sample_format, hz, channels=SIX):
    """The unit plays a tone on the only device, at full level, and is recorded."""
    server.unplug_all()
    server.plug_in("car", channels, rate, sample_format)
    frames = np.arange(48000)
    tone = (LEVEL * np.sin(2 * np.pi * hz * frames / 48000)).astype(np.float32)
    wavfile.write(server.folder / "tone.wav", 48000, np.stack([tone, tone], axis=1))
    recording = Recording(server, "car", channels, rate, sample_format)
    unit = subprocess.Popen([headunit, "--root", root, "--play", server.folder / "tone.wav"], env=server.environment)
    try:
        # Risen, and then a while
        wait_for(lambda: np.count_nonzero(np.abs(recording.samples()) > 0.98 * LEVEL) > 0.02 * rate)
        yield recording, unit
    finally:
        if unit.poll() is None:
            unit.kill()
            unit.wait()
        recording.end()


def distortion(samples, rate, hz):
    """Everything but the tone of that frequency, from 20 Hz to 20 kHz, in dB of the tone; and the loudest harmonic."""
    time_axis = np.arange(len(samples)) / rate
    basis = np.stack([np.cos(2 * np.pi * hz * time_axis), np.sin(2 * np.pi * hz * time_axis), np.ones_like(time_axis)])
    weights = np.linalg.lstsq(basis.T, samples, rcond=None)[0]
    tone = weights @ basis
    band = scipy.signal.butter(6, [20, 20000], "bandpass", fs=rate, output="sos")
    rest = scipy.signal.sosfilt(band, samples - tone)[len(samples) // 4:]
    amplitude = np.hypot(weights[0], weights[1])
    window = scipy.signal.windows.blackmanharris(len(samples))
    harmonics = [2 * abs(np.sum((samples - tone) * window * np.exp(-2j * np.pi * n * hz * time_axis))) / window.sum()
                 for n in range(2, int(20000 / hz) + 1)]
    decibels = lambda ratio: 20 * np.log10(max(ratio, 1e-12))
    return decibels(np.sqrt(np.mean(rest ** 2)) / (amplitude / np.sqrt(2))), decibels(max(harmonics) / amplitude)


def check_rate(server, root, rate, sample_format, limit):
    best = (0, 0)
    for _ in range(TRIES):
        with playing(server, root, rate, sample_format, 1000) as (recording, _):
            start = len(recording.samples())
            wait_for(lambda: len(recording.samples()) > start + 4 * rate)
            samples = recording.samples()[start + rate:]
            for first in range(0, len(samples) - 2 * rate, rate // 4):
                best = min(best, distortion(samples[first:first + 2 * rate], rate, 1000))
        if best[0] <= limit:
            break
    check(f"{rate} Hz, {sample_format}: distortion and noise", best[0], limit)
    check(f"{rate} Hz, {sample_format}: loudest harmonic", best[1], -110)


def check_end(server, root, name, end, hz):
    rate = 48000
    filter_taps = scipy.signal.firwin(4095, 2000, window="blackmanharris", pass_zero=False, fs=rate)
    best = 1000
    for _ in range(TRIES):
        with playing(server, root, rate, "float32le", hz) as (recording, unit):
            length = len(recording.samples())
            end(server, unit)
            wait_for(lambda: len(recording.samples()) > length + rate and
                     not np.any(recording.samples()[-rate // 2:]))
            samples = recording.samples()
            if unit.poll() is not None and unit.returncode != 0:
                failures.append(name)
                print(f"{name}: exit code {unit.returncode}")
            last = np.flatnonzero(samples)[-1]
            stretch = samples[last - rate // 4:last + rate // 4]
            residual = scipy.signal.fftconvolve(stretch, filter_taps, "same")[4095 // 2:-4095 // 2]
            best = min(best, 20 * np.log10(np.abs(residual).max() / LEVEL))
        if best <= -90:
            break
    check(f"{name} under {hz} Hz: above 2 kHz", best, -90)


def ended_by(number):
    def end(_, unit):
        unit.send_signal(number)
        unit.wait(PATIENCE)
    return end


class Sleep:
    """The desk's sleep, on a system bus of the test's own."""

    def __init__(self, server):
        configuration = server.folder / "bus.conf"
        configuration.write_text(f"""<busconfig><listen>unix:path={server.folder}/bus</listen><auth>EXTERNAL</auth>
            <policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
            <allow own="*"/></policy></busconfig>""")
        self.bus = subprocess.Popen(["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address"],
                                    text=True, stdout=subprocess.PIPE)
        server.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self.bus.stdout.readline().strip()
        self.logind = subprocess.Popen([fake_logind], text=True, env=server.environment, stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE)

    def begin(self, *_):
        self.logind.stdin.write("\n")
        self.logind.stdin.flush()
        if self.logind.stdout.readline() != "asleep\n":
            sys.exit("no sleep")

    def end(self):
        self.logind.stdin.close()
        self.logind.wait()
        self.bus.terminate()
        self.bus.wait()


def check_sleep(server, root):
    sleep = Sleep(server)
    try:
        check_end(server, root, "sleep of the desk", sleep.begin, 63)
    finally:
        sleep.end()


def change_default_device(server, _):
    server.control("set-default-source", "car.monitor")  # or else the recording would be taken along
    server.plug_in("headphones", "front-left,front-right", 44100, "s16le")
    server.control("set-default-sink", "headphones")


def main():
    with tempfile.TemporaryDirectory() as name:
        server = Server(Path(name))
        root = Path(name) / "root"
        script = Path(name) / "settings.js"
        neutral = {"inputgain0": 40, "audioservice/eqtype": 16, **{f"eq{band}": 12 for band in range(13)}}
        script.write_text("".join(f"setStore({key!r}, {value});\n" for key, value in neutral.items()))
        subprocess.run([headunit, "--root", root, "--script", script], check=True, env=server.environment)
        # The unit starts no louder than its factory file allows.
        factory = root / "media/flash/nvm/factory/audiosettings.ini"
        factory.write_text(factory.read_text().replace("powerup/mainlimit=30", "powerup/mainlimit=40"))
        try:
            for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
                check_end(server, root, number.name, ended_by(number), 63)
            check_sleep(server, root)
            check_end(server, root, "another default device", change_default_device, 63)
            check_rate(server, root, 44100, "float32le", -110)
            check_rate(server, root, 44100, "s16le", -93)
            check_rate(server, root, 96000, "float32le", -110)
        finally:
            server.end()
    sys.exit(1 if failures else 0)


main()
