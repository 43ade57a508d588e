#!/usr/bin/python3
"""The tasks of zepha-bench with public programs: fluids and iapws (packages python3-fluids and
python3-iapws). Prints JSON: per task the seconds of one call and its result. These are interpreted
programs; what they show is that the results are the same, and that nothing here is slow."""

import json
import time
import timeit

from fluids.control_valve import control_valve_noise_g_2011, size_control_valve_g, size_control_valve_l
from fluids.flow_meter import differential_pressure_meter_solver
from fluids.friction import Colebrook
from iapws import IAPWS97

KGF_CM2 = 98066.5  # Pa


def bore():
    """20 t/h of water in 102.3 mm by 25 kPa, flange taps."""
    return 1000 * differential_pressure_meter_solver(
        D=0.1023, rho=998.2, mu=1.002e-3, k=1.3, P1=6.13 * KGF_CM2, P2=6.13 * KGF_CM2 - 2549.3 * 9.80665,
        m=20000 / 3600, meter_type="ISO 5167 orifice", taps="flange", epsilon_specified=1)


def liquid_cv():
    return size_control_valve_l(
        rho=998.2, Psat=0.0238 * KGF_CM2, Pc=225.65 * KGF_CM2, mu=1e-3, P1=10 * KGF_CM2, P2=8 * KGF_CM2,
        Q=100000 / 998.2 / 3600, D1=0.1, D2=0.1, d=0.1, FL=0.9, Fd=1) / 0.865


def steam_cv():
    return size_control_valve_g(
        T=473.15, MW=18.015, mu=1.6e-5, gamma=1.3, Z=0.95, P1=10 * KGF_CM2, P2=8 * KGF_CM2,
        Q=10000 / 18.015 * 22.414 / 3600, D1=0.1, D2=0.1, d=0.1, FL=0.9, Fd=1, xT=0.68) / 0.865


def noise():
    return control_valve_noise_g_2011(
        m=10000 / 3600, P1=10 * KGF_CM2, P2=8 * KGF_CM2, T1=473.15, rho=4.75, gamma=1.3, MW=18.015,
        Kv=150 * 0.865, d=0.1, Di=0.1, t_pipe=0.007, Fd=0.42, FL=0.9, FLP=0.9, FP=1)


TASKS = {
    "SolveBore/water": (bore, "mm"),
    "SizeValve/liquid": (liquid_cv, "Cv"),
    "SizeValve/steam": (steam_cv, "Cv"),
    "ValveNoise": (noise, "dB(A)"),
    "FrictionFactor": (lambda: Colebrook(100000, 0.05 / 102.3), ""),
    "SteamDensity": (lambda: IAPWS97(P=10.2 * KGF_CM2 / 1e6, T=473.15).rho, "kg/m3"),
}

tasks = {}
for name, (task, unit) in TASKS.items():
    timer = timeit.Timer(task, timer=time.process_time)
    calls, _ = timer.autorange()
    seconds = min(timer.repeat(3, calls)) / calls
    tasks[name] = {"seconds": seconds, "result": task(), "unit": unit}
print(json.dumps(tasks))
