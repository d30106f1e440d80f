#!/usr/bin/env python3
"""One table of the heavy operations: time, and times the plain version, the memory and a general engine.

    bench/comparar.py build/release/bench/comparar [--rondas 5] [--duckdb [LIBRARY]] [--carpeta FOLDER]

Each round runs the program once and then the same works in DuckDB, so that all meet the same machine; figures are
minima over the rounds, of processor time, and for DuckDB with two threads of the clock. Where a work's answer differs
from DuckDB's, the script says so and ends with 1. --duckdb without a library fetches one from the registry of npm into
the temporary folder, which takes 200 MB and 850 MB of files besides; nothing stays."""
import argparse
import ctypes
import glob
import os
import subprocess
import sys
import tempfile
import time

PAQUETE = '@duckdb/node-bindings-linux-x64'
COLUMNAS = ', '.join(f'n{i}' for i in range(1, 7))
GANADORES = '(4, 11, 23, 30, 38, 47)'
CINCO = ' AND '.join([
    '({}) BETWEEN 2 AND 4'.format(' + '.join(f'(n{i} <= 24)::INT' for i in range(1, 7))),
    ' AND '.join(f'n{i + 1} - n{i} <= 20' for i in range(1, 6)) + ' AND n6 - n1 BETWEEN 20 AND 47',
    '({}) BETWEEN 2 AND 4'.format(' + '.join(f'(n{i} % 2 = 0)::INT' for i in range(1, 7))),
    ' AND '.join(f'n{i + 2} - n{i} <> 2' for i in range(1, 5)),
    '(s BETWEEN 100 AND 140 OR s BETWEEN 150 AND 170 OR s BETWEEN 180 AND 200)',
])
SUMA = ' + '.join(f'n{i}::INT' for i in range(1, 7))
EXPANSION = ('CREATE OR REPLACE TABLE b AS SELECT ' + ', '.join(f'a{i}.x::UTINYINT n{i}' for i in range(1, 7)) +
             ' FROM ' + ', '.join(f'range(1, 50) a{i}(x)' for i in range(1, 7)) +
             ' WHERE ' + ' AND '.join(f'a{i}.x < a{i + 1}.x' for i in range(1, 6)))


class DuckDB:
    """What it does of the same, through the C interface of the library."""

    def __init__(self, ruta):
        self.lib = ctypes.CDLL(ruta)
        self.lib.duckdb_value_int64.restype = ctypes.c_int64
        self.lib.duckdb_result_error.restype = ctypes.c_char_p
        self.lib.duckdb_library_version.restype = ctypes.c_char_p
        base, self.conexion = ctypes.c_void_p(), ctypes.c_void_p()
        if self.lib.duckdb_open(None, ctypes.byref(base)) or self.lib.duckdb_connect(base, ctypes.byref(self.conexion)):
            sys.exit('DuckDB does not open')
        self.version = self.lib.duckdb_library_version().decode()

    def __call__(self, sql):
        resultado = ctypes.create_string_buffer(256)
        if self.lib.duckdb_query(self.conexion, sql.encode(), resultado):
            sys.exit(f'{sql}: {self.lib.duckdb_result_error(resultado).decode()}')
        valor = self.lib.duckdb_value_int64(resultado, ctypes.c_uint64(0), ctypes.c_uint64(0))
        self.lib.duckdb_destroy_result(resultado)
        return valor

    def preparar(self):
        self(EXPANSION)
        self(f'CREATE TABLE d AS SELECT {COLUMNAS}, row_number() OVER () i FROM '
             f'(SELECT * FROM b ORDER BY hash({COLUMNAS}))')
        self(f'CREATE TABLE u AS SELECT {COLUMNAS} FROM d WHERE i <= 7000000')
        self(f'CREATE TABLE v AS SELECT {COLUMNAS} FROM d WHERE i > 6983816')

    def trabajos(self, carpeta):
        aciertos = ' + '.join(f'(n{i} IN {GANADORES})::INT' for i in range(1, 7))
        juntos = 'SELECT count(*) FROM (FROM u {} FROM v)'
        columnas = '{' + ', '.join(f"'n{i}': 'UTINYINT'" for i in range(1, 7)) + '}'
        return {
            'expansion': EXPANSION,
            'cinco': f'SELECT count(*) FROM (SELECT *, {SUMA} s FROM b) WHERE {CINCO}',
            'sorteo': f'SELECT c FROM (SELECT {aciertos} h, count(*) c FROM b GROUP BY h) WHERE h = 3',
            'unir': juntos.format('UNION'),
            'comunes': juntos.format('INTERSECT'),
            'restar': juntos.format('EXCEPT'),
            'ordenar': f'CREATE OR REPLACE TABLE o AS SELECT {COLUMNAS} FROM d ORDER BY {COLUMNAS}',
            'importar': f"CREATE OR REPLACE TABLE t AS FROM read_csv('{carpeta}/boleto.txt', header = false, "
                        f"columns = {columnas})",
        }


def buscar_duckdb(ruta, carpeta):
    if ruta != 'npm':
        return ruta
    subprocess.run(['npm', 'pack', '--silent', PAQUETE], cwd=carpeta, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(['tar', 'xzf', *glob.glob(carpeta + '/*.tgz')], cwd=carpeta, check=True)
    return carpeta + '/package/libduckdb.so'


def ronda_propia(programa, carpeta, filas, literales):
    ordenes = [programa, carpeta] + ['--literales'] * literales
    for linea in subprocess.run(ordenes, capture_output=True, text=True, check=True).stdout.splitlines():
        clave, nombre, propio, suelo, respuesta, literal, como = linea.split('\t')
        fila = filas.setdefault(clave, {'nombre': nombre, 'propio': [], 'suelo': [], 'uno': [], 'dos': []})
        fila['propio'].append(float(propio))
        fila['suelo'].append(float(suelo))
        fila['respuesta'] = int(respuesta)
        if literales:
            fila['literal'], fila['como'] = float(literal), como


def ronda_duckdb(duckdb, carpeta, filas):
    """Times of both settings; an answer that is not ours is told."""
    bien = True
    for hilos, reloj, lista in ((1, time.process_time, 'uno'), (2, time.perf_counter, 'dos')):
        duckdb(f'SET threads = {hilos}')
        for clave, sql in duckdb.trabajos(carpeta).items():
            antes = reloj()
            respuesta = duckdb(sql)
            filas[clave][lista].append(reloj() - antes)
            if respuesta != filas[clave]['respuesta']:
                print(f"{clave}: {filas[clave]['respuesta']}, DuckDB {respuesta}", file=sys.stderr)
                bien = False
    return bien


def tiempo(segundos):
    return f'{segundos * 1e3:,.1f} ms' if segundos < 1 else f'{segundos:,.2f} s'


def veces(otro, propio):
    if not otro:
        return ''
    razon = otro / propio
    return f'{razon:,.1f}' if razon < 10 else f'{razon:,.0f}'


def imprimir(filas):
    print('| Operation | Time | Floor | Plain | DuckDB | DuckDB, 2 threads |\n|---|---|---|---|---|---|')
    for fila in filas.values():
        propio = min(fila['propio'])
        literal = veces(fila.get('literal'), propio) + ('*' if fila.get('como') else '')
        print(f"| {fila['nombre']} | {tiempo(propio)} | {veces(propio, min(fila['suelo']))} | {literal} "
              f"| {veces(min(fila['uno'], default=0), propio)} | {veces(min(fila['dos'], default=0), propio)} |")
    print('\nHow the plain versions marked with * were measured, and the spread of the rounds:\n')
    for fila in filas.values():
        propio = fila['propio']
        print(f"- {fila['nombre']}: {fila.get('como') or 'on the same size'}; floor {tiempo(min(fila['suelo']))}; "
              f"rounds {tiempo(min(propio))} to {tiempo(max(propio))}")


def main():
    a = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    a.add_argument('programa')
    a.add_argument('--rondas', type=int, default=5)
    a.add_argument('--duckdb', nargs='?', const='npm')
    a.add_argument('--carpeta', default=tempfile.gettempdir())
    o = a.parse_args()
    bien, filas = True, {}
    with tempfile.TemporaryDirectory(prefix='comparar-', dir=o.carpeta) as carpeta:
        duckdb = DuckDB(buscar_duckdb(o.duckdb, carpeta)) if o.duckdb else None
        if duckdb:
            duckdb.preparar()
        for ronda in range(o.rondas):
            ronda_propia(os.path.abspath(o.programa), carpeta, filas, ronda == 0)
            if duckdb:
                bien = ronda_duckdb(duckdb, carpeta, filas) and bien
    imprimir(filas)
    if duckdb:
        print(f'\nDuckDB {duckdb.version}.')
    sys.exit(0 if bien else 1)


if __name__ == '__main__':
    main()
