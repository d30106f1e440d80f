#!/usr/bin/env python3
"""Sizes of reduced systems: the first cycle, some seconds of cycles, and what --mejorar makes of the first.

    bench/mejora.py build/release/src/lote/tombolera-lote --segundos 60 --semillas 5 12/5 15/4 cond20/3

A case is NUMBERS/HITS, or condNUMBERS/HITS for one of the conditioned bases below; without any, all with a size that is
publicly known. Each run is one process on one core and ends when it reaches that size. The table says the median
over the seeds of the size and of the CPU time of whole runs, every size that came, and the proved bound."""
import argparse
import math
import os
import re
import signal
import statistics
import subprocess
import tempfile
import time

EJEMPLO = os.path.join(os.path.dirname(__file__), '..', 'share', 'ejemplos', 'doce-numeros.xml')

SinFin = 1_000_000 # seconds: the run is stopped before

# numbers: even numbers among the six, sum of the six
CONDICIONES = {12: ('2,3,4', '21-57'), 15: ('2,3,4', '38-58'), 18: ('3', '45-69'), 20: ('2,3,4', '50-76')}

# the smallest systems publicly known, by hits and numbers
CONOCIDOS = {
    5: {8: 4, 9: 7, 10: 14, 11: 22, 12: 38, 13: 61, 14: 98, 15: 142, 16: 223, 17: 332, 18: 471, 19: 646, 20: 844},
    4: {9: 3, 11: 5, 12: 6, 13: 10, 14: 14, 15: 19, 16: 25, 17: 33, 18: 42, 19: 53, 20: 66},
    3: {12: 2, 13: 2, 14: 4, 15: 4, 16: 5, 17: 6, 18: 7, 19: 9, 20: 10, 49: 163},
    2: {15: 2, 19: 3, 20: 3, 40: 12, 49: 19},
}
CONOCIDOS_CONDICIONADAS = {5: {12: 36, 15: 135, 18: 280, 20: 769}, 4: {12: 6, 15: 17, 18: 37, 20: 74},
                           3: {12: 2, 15: 4, 18: 7, 20: 13}}


def base(numeros, aciertos, condicionada):
    with open(EJEMPLO, encoding='utf-8') as f:
        xml = f.read()
    pares, sumas = CONDICIONES[numeros] if condicionada else ('', '0-0')
    activo = "'1'" if condicionada else "'0'"
    cambios = [
        (r"(<Base_Numeros numeros=)'[^']*'", r"\1'" + ','.join(str(n) for n in range(1, numeros + 1)) + "'"),
        (r"(nombre='PARESIMPARES' activado=)'\d'", r'\1' + activo),
        (r"(<ParesActivos valores=)'[^']*'", r"\1'" + pares + "'"),
        (r"(nombre='SUMAS' activado=)'\d'", r'\1' + activo),
        (r"(<intervalo numero='1' suma=)'[^']*'", r"\1'" + sumas + "'"),
        (r"<Tipo descripcion='[^']*' valor='\d' />", f"<Tipo descripcion='al {aciertos}' valor='{6 - aciertos}' />"),
    ]
    for patron, cambio in cambios:
        xml = re.sub(patron, cambio, xml, flags=re.S)
    return xml


def cpu(proceso):
    with open(f'/proc/{proceso.pid}/stat', encoding='ascii') as f:
        campos = f.read().rsplit(')', 1)[1].split()
    return (int(campos[11]) + int(campos[12])) / os.sysconf('SC_CLK_TCK')


def calcular(lote, fichero, segundos, *opciones):
    """The counts that the run prints, and its CPU time; it is stopped after so many seconds of that."""
    with subprocess.Popen([lote, 'calcular', fichero, *opciones], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          text=True) as proceso:
        usado = 0
        while proceso.poll() is None:
            usado = max(usado, cpu(proceso))
            if usado >= segundos:
                proceso.send_signal(signal.SIGINT)
                break
            time.sleep(0.05)
        salida = proceso.stdout.read()
    return {k: int(v) for k, v in re.findall(r'^(\w+): (\d+)$', salida, re.M)}, usado


def fila(o, caso):
    nombre, aciertos = caso.split('/')
    numeros, condicionada = int(nombre.removeprefix('cond')), nombre.startswith('cond')
    conocido = (CONOCIDOS_CONDICIONADAS if condicionada else CONOCIDOS).get(int(aciertos), {}).get(numeros)
    with tempfile.NamedTemporaryFile('w', suffix='.xml', encoding='utf-8') as f:
        f.write(base(numeros, int(aciertos), condicionada))
        f.flush()
        uno, _ = calcular(o.lote, f.name, math.inf)
        ciclos = calcular(o.lote, f.name, o.ciclos, '--segundos', str(SinFin))[0]['Reducidas'] if o.ciclos else '-'
        meta = ['--mejorar-hasta', str(conocido)] if conocido else []
        corridas = [calcular(o.lote, f.name, o.segundos, '--mejorar', str(SinFin), '--mejorar-semilla', str(s), *meta)
                    for s in range(1, o.semillas + 1)]
    tamanos = [cuentas['Reducidas'] for cuentas, _ in corridas]
    tiempo = statistics.median_low(segundos for _, segundos in corridas)
    return (f"| {nombre} | {aciertos} | {uno['Condicionadas']} | {uno['Reducidas']} | {ciclos} "
            f"| {statistics.median_low(tamanos)} ({tiempo:.1f}) | {' '.join(map(str, tamanos))} | {conocido or '-'} "
            f"| {max(cuentas['Cota'] for cuentas, _ in corridas)} |")


def todos():
    return ([f'{n}/{a}' for a, bases in CONOCIDOS.items() for n in bases] +
            [f'cond{n}/{a}' for a, bases in CONOCIDOS_CONDICIONADAS.items() for n in bases])


def main():
    a = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    a.add_argument('lote')
    a.add_argument('casos', nargs='*')
    a.add_argument('--segundos', type=int, default=60, help='of CPU time')
    a.add_argument('--semillas', type=int, default=1)
    a.add_argument('--ciclos', type=int, default=0, metavar='S', help='also the best of S seconds of cycles')
    o = a.parse_intermixed_args()
    print('| Base | Al | Condicionadas | Un ciclo | Ciclos | Mejorado (s) | Semillas | Conocido | Cota |\n' + '|---' * 9 + '|')
    for caso in o.casos or todos():
        print(fila(o, caso), flush=True)


if __name__ == '__main__':
    main()
