#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Checks what headunit --render and --measure give against filters that share no code with it: scipy and sox.

usage: oracle.py HEADUNIT
"""
import csv
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import numpy as np
from scipy import signal
from scipy.io import wavfile

RATE = 48000
OUTPUTS = ["FL", "FR", "RL", "RR", "SL", "SR"]
BANDS = [63, 100, 160, 250, 400, 630, 1000, 1600, 2500, 4000, 6300, 10000, 16000]
FRONT = [0, 25, 40, 63, 80, 100, 160, 250, 500, 1000, 3500, 5000]
REAR_AND_SUB = [0, 25, 40, 63, 100, 250]
NEUTRAL = {"inputgain0": 40, "Setup_Sub": True, "subwooferLevel": 10, "audioservice/eqtype": 16,
           **{f"eq{band}": 12 for band in range(13)}}

headunit = sys.argv[1]
keeper = tempfile.TemporaryDirectory()
folder = Path(keeper.name)
failures = []


def check(what, distance, limit):
    verdict = "" if distance <= limit else "  MISSED"
    print(f"{what:60} {distance:.2g}, limit {limit}{verdict}")
    if not distance <= limit:
        failures.append(what)


def unit(settings):
    """A unit with these settings: its root folder."""
    root = folder / "root"
    shutil.rmtree(root, ignore_errors=True)
    script = folder / "settings.js"
    script.write_text("".join(f"setStore({key!r}, {str(value).lower()});\n" for key, value in settings.items()))
    run("--root", root, "--script", script)
    return root


def run(*arguments):
    subprocess.run([headunit, *map(str, arguments)], check=True,
                   env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))


def rendered(root, samples):
    """Six channels of what the unit makes of two."""
    wavfile.write(folder / "in.wav", RATE, samples.astype(np.float32))
    run("--root", root, "--render", folder / "in.wav", folder / "out.wav")
    rate, result = wavfile.read(folder / "out.wav")
    assert rate == RATE and result.shape == (len(samples), 6)
    return result.astype(float).T


def decibels(response):
    with np.errstate(divide="ignore"):
        return 20 * np.log10(np.abs(response))


def impulse(height=1 / 64):
    samples = np.zeros((RATE, 2))
    samples[0] = height
    return samples


def column(table, name):
    """An output in --measure's table, as complex numbers."""
    return np.array([10 ** (float(row[name + " dB"]) / 20) * np.exp(1j * np.radians(float(row[name + " deg"])))
                     for row in table])


def crossovers():
    worst = {"magnitude": 0, "delay": 0, "table": 0, "sum": 0}
    frequencies = np.geomspace(20, 20000, 500)
    delays = [0, 7, 13, 42, 99, 66]
    for step in range(1, 12):
        order = 1 + step % 3
        other = 1 + step % 5
        filters = [("front", FRONT[step], step, "highpass"), ("rear", REAR_AND_SUB[other], other, "highpass"),
                   ("subwoofer", REAR_AND_SUB[other], other, "lowpass")]
        settings = dict(NEUTRAL)
        for name, _, index, _ in filters:
            settings.update({f"crossover/{name}freq": index, f"crossover/{name}slope": order})
        settings.update({f"timing/DATA_TYPE{output}": delay for output, delay in enumerate(delays)})
        root = unit(settings)
        answers = rendered(root, impulse()) * 64
        run("--root", root, "--measure", folder / "measured.csv")
        table = list(csv.DictReader(open(folder / "measured.csv")))
        hertz = np.array([float(row["Hz"]) for row in table])
        total = np.zeros(len(hertz), complex)
        for output, name in enumerate(OUTPUTS):
            _, cut_off, _, kind = filters[output // 2]
            sections = signal.butter(order, cut_off, kind, fs=RATE, output="sos")
            _, expected = signal.sosfreqz(sections, frequencies, fs=RATE)
            late = round(delays[output] * 4.8)
            _, heard = signal.freqz(answers[output][late:], worN=frequencies, fs=RATE)
            loud = decibels(expected) > -80
            worst["magnitude"] = max(worst["magnitude"], np.max(np.abs(decibels(heard) - decibels(expected))[loud]))
            worst["delay"] = max(worst["delay"], np.max(np.abs(answers[output][:late]), initial=0))
            _, expected = signal.sosfreqz(sections, hertz, fs=RATE)
            expected = expected * np.exp(-2j * np.pi * hertz / RATE * late)
            worst["table"] = max(worst["table"], np.max(np.abs(column(table, name) - expected)))
            total += expected
        worst["sum"] = max(worst["sum"], np.max(np.abs(column(table, "sum") - total)))
    check("crossovers against scipy's Butterworth (dB)", worst["magnitude"], 0.02)
    check("samples ahead of the delay", worst["delay"], 0)
    check("--measure against scipy, magnitude and phase", worst["table"], 1e-4)
    check("its sum of all outputs", worst["sum"], 6e-4)


def equaliser():
    random = np.random.default_rng(1)
    worst = 0
    for case in range(12):
        gains = random.integers(-12, 13, 13) if case else 12 * (-1) ** np.arange(13)
        root = unit({**NEUTRAL, **{f"eq{band}": int(gain) + 12 for band, gain in enumerate(gains)}})
        answers = rendered(root, impulse()) * 64
        _, heard = signal.freqz(answers[0], worN=np.array(BANDS, float), fs=RATE)
        worst = max(worst, np.max(np.abs(decibels(heard) - gains)))
    check("equaliser at its centres, by scipy (dB)", worst, 0.05)


def against_sox():
    """Second order, where sox computes the same filter, sample by sample."""
    noise = np.random.default_rng(2).uniform(-0.25, 0.25, (2 * RATE, 2))
    root = unit({**NEUTRAL, "crossover/frontfreq": 4, "crossover/frontslope": 2, "crossover/subwooferfreq": 4,
                 "crossover/subwooferslope": 2})
    ours = rendered(root, noise)
    for output, effect, cut_off in [(0, "highpass", 80), (5, "lowpass", 100)]:
        subprocess.run(["sox", folder / "in.wav", "-e", "floating-point", "-b", "32", folder / "sox.wav",
                        effect, "-2", str(cut_off), "0.70710678118654752q"], check=True)
        _, theirs = wavfile.read(folder / "sox.wav")
        check(f"{effect} against sox, sample by sample", np.max(np.abs(ours[output] - theirs[:, output % 2])), 1e-6)


crossovers()
equaliser()
against_sox()
sys.exit(f"missed: {', '.join(failures)}" if failures else 0)
