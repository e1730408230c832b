#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Judges the engine's sound in motion with scipy's filters: what a change adds to a steady tone, and when it is over.

usage: motion.py MOTION [CASES]

MOTION is the program that plays (motion.cpp). Every figure is the worst of all records, printed beside its goal.
"""
import subprocess
import sys

import numpy as np
from scipy import signal

RATE = 48000
AMPLITUDE = 0.25
WINDOW = "blackmanharris"
HIGH = signal.firwin(4095, 2000, window=WINDOW, pass_zero=False, fs=RATE)
THUMP = {63: signal.firwin(8191, 150, window=WINDOW, pass_zero=False, fs=RATE),
         1000: signal.firwin(8191, 500, window=WINDOW, fs=RATE)}


def milliseconds(duration):
    return round(duration * RATE / 1000)


def decibels(ratio):
    return 20 * np.log10(max(ratio, 1e-12))


def peak(samples):
    return float(np.max(np.abs(samples)))


class Figures:
    """The worst of each measure, and where it was."""
    def __init__(self):
        self.worst = {}

    def add(self, measure, goal, value, where):
        if measure not in self.worst or value > self.worst[measure][0]:
            self.worst[measure] = (value, goal, where)

    def print(self):
        """Whether all goals are met."""
        for measure, (value, goal, where) in sorted(self.worst.items()):
            print(f"{measure:50} {value:7.1f} dB  goal {goal:6.1f}  {'' if value <= goal else 'MISSED'}  ({where})")
        return all(value <= goal for value, goal, _ in self.worst.values())


def records(program, cases):
    """Each record's fields and its two rows of samples."""
    with subprocess.Popen([program, cases], stdout=subprocess.PIPE) as process:
        while line := process.stdout.readline():
            fields = line.decode().rstrip("\n").split("\t")
            count = int(fields[-1])
            samples = np.frombuffer(process.stdout.read(2 * 4 * count), dtype="<f4").astype(float)
            yield fields[:-1], samples.reshape(2, count)
    if process.returncode != 0:
        sys.exit(f"{program} {cases}: status {process.returncode}")


def filtered(samples, fir, first, last):
    """The filter's output for samples first to last; it is symmetrical and thus early by half its length."""
    half = len(fir) // 2
    return signal.oaconvolve(samples[first - half:last + half], fir, mode="valid")


def judge_changes(program):
    figures = Figures()
    count = 0
    for (name, size, hz, first, last, level), (changed, settled) in records(program, "changes"):
        hz, first, last, level = int(hz), int(first), int(last), float(level)
        where = f"{name}, {hz} Hz"
        count += 1
        small = size == "1 dB"
        kind = "1 dB" if small else "any change"
        span = first - milliseconds(100), last + milliseconds(290)
        thump = peak(filtered(changed, THUMP[hz], *span))
        figures.add(f"thump, {kind}", -80 if small else -50, decibels(thump / level), where)
        if hz == 63:
            above = peak(filtered(changed, HIGH, *span))
            figures.add(f"above 2 kHz, {kind}", -110 if small else -90, decibels(above / AMPLITUDE), where)
        for late, goal in (100, -60), (400, -100):
            off = peak((changed - settled)[last + milliseconds(late):])
            figures.add(f"off the new settings after {late} ms", goal, decibels(off / level), where)
    print(f"{count} changes under a tone")
    return figures.print() and count > 0


def true_peak(samples):
    """The highest of sixteen times as many points, each from 96 samples."""
    factor, reach = 16, 48
    fir = signal.firwin(2 * reach * factor + 1, 1 / factor, window=("kaiser", 8))
    return peak(signal.resample_poly(samples, factor, 1, window=fir))


def distortion(samples, hz):
    """Everything but the tone, relative to it."""
    time = np.arange(len(samples)) / RATE
    turns = np.stack([np.sin(2 * np.pi * hz * time), np.cos(2 * np.pi * hz * time), np.ones_like(time)], axis=1)
    fit, *_ = np.linalg.lstsq(turns, samples, rcond=None)
    rest = samples - turns @ fit
    return np.sqrt(2 * np.mean(rest ** 2)) / np.hypot(fit[0], fit[1])


def judge_limiter(program):
    figures = Figures()
    heard = set()
    for (measure, name), (samples, beside) in records(program, "limiter"):
        heard.add(measure)
        if measure == "true peak":
            figures.add(f"true peak, 10 dB beyond: {name}", 0, decibels(true_peak(samples)), name)
        elif measure == "distortion":
            hz = int(name.split()[0])
            figures.add(f"distortion, 6 dB beyond: {name}", -40 if hz < 50 else -50,
                        decibels(distortion(samples[RATE:3 * RATE], hz)), name)
        elif measure == "front beside":
            moved = decibels(peak(samples - beside) / peak(beside) + 1)
            figures.add("front beside an overdriven subwoofer, off by", 0.1, moved, name)
        elif measure == "subwoofer itself":
            figures.add("... which is at", 0, decibels(true_peak(samples)), name)
            figures.add("... and not below", 1, -decibels(true_peak(samples)), name)
        elif measure == "engaging":
            span = milliseconds(300), len(samples) - milliseconds(50)
            figures.add("engaging and letting go, above 2 kHz", -90, decibels(peak(filtered(samples, HIGH, *span))), name)
        elif measure == "within full scale":
            figures.add("within full scale, off by", -200, decibels(peak(samples - beside)), name)
    print("limiter")
    return figures.print() and len(heard) == 6


CASES = {"changes": judge_changes, "limiter": judge_limiter}


def main():
    program, *chosen = sys.argv[1:]
    results = [CASES[case](program) for case in chosen or CASES]
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
