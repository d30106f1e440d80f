#!/usr/bin/env python3
"""Sizes of reduced systems: the first cycle, a minute of cycles, and what --mejorar makes of the first.

    bench/mejora.py build/release/src/lote/tombolera-lote --segundos 60 --semillas 5 12/5 15/4 cond20/3

A case is NUMBERS/HITS, or condNUMBERS/HITS for one of the conditioned bases below. Each run is one process on
one core; the table says the median over the seeds, and of how many conditioned bets."""
import argparse
import os
import re
import statistics
import subprocess
import tempfile

EJEMPLO = os.path.join(os.path.dirname(__file__), '..', 'share', 'ejemplos', 'doce-numeros.xml')

# numbers: even numbers among the six, sum of the six
CONDICIONES = {12: ('2,3,4', '21-57'), 15: ('2,3,4', '38-58'), 18: ('3', '45-69'), 20: ('2,3,4', '50-76')}


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


def calcular(lote, fichero, *opciones):
    salida = subprocess.run([lote, 'calcular', fichero, *opciones], capture_output=True, text=True, check=True).stdout
    return {k: int(v) for k, v in re.findall(r'^(\w+): (\d+)$', salida, re.M)}


def main():
    a = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    a.add_argument('lote')
    a.add_argument('casos', nargs='+')
    a.add_argument('--segundos', type=int, default=60)
    a.add_argument('--semillas', type=int, default=1)
    a.add_argument('--ciclos', action='store_true', help='also the best of as many seconds of cycles')
    o = a.parse_args()
    print('| Base | Al | Condicionadas | Un ciclo | Ciclos | Mejorado |\n|---|---|---|---|---|---|')
    for caso in o.casos:
        nombre, aciertos = caso.split('/')
        numeros = int(nombre.removeprefix('cond'))
        with tempfile.NamedTemporaryFile('w', suffix='.xml', encoding='utf-8') as f:
            f.write(base(numeros, int(aciertos), nombre.startswith('cond')))
            f.flush()
            uno = calcular(o.lote, f.name)
            ciclos = calcular(o.lote, f.name, '--segundos', str(o.segundos))['Reducidas'] if o.ciclos else '-'
            mejorados = [calcular(o.lote, f.name, '--mejorar', str(o.segundos), '--mejorar-semilla', str(s))['Reducidas']
                         for s in range(1, o.semillas + 1)]
        print(f"| {nombre} | {aciertos} | {uno['Condicionadas']} | {uno['Reducidas']} | {ciclos} "
              f'| {statistics.median_low(mejorados)} |', flush=True)


if __name__ == '__main__':
    main()
