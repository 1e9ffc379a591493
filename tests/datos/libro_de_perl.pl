#!/usr/bin/perl
# Writes a workbook with Spreadsheet::WriteExcel: sheets of all kinds, an embedded chart, a comment and a name.
use strict;
use warnings;
use utf8;
use Spreadsheet::WriteExcel;

my $libro = Spreadsheet::WriteExcel->new($ARGV[0]) or die "no se puede escribir $ARGV[0]: $!";
my $fecha = $libro->add_format(num_format => 'dd/mm/yyyy');
my $gris = $libro->add_format(bg_color => 'silver');

my $parcela = $libro->add_worksheet('Parcela');
$parcela->write_row(0, 0, ['Árbol €', 'X', 'Día', 'Doble', 'Código', 'Blanco', 'Grito', 'Verdad']);
my @arboles = ('encina', 'piñón', 'chopo');
for my $i (1 .. 3) {
    my $x = $i / 4;
    $parcela->write_string($i, 0, $arboles[$i - 1]);
    $parcela->write_number($i, 1, $x);
    $parcela->write_number($i, 2, 43830 + $i, $fecha);
    $parcela->write_formula($i, 3, '=B' . ($i + 1) . '*2', undef, 2 * $x);
    $parcela->write_string($i, 4, "00$i");
    $parcela->write_blank($i, 5, $gris);
}
$parcela->write_formula(1, 6, '=A2&"!"', undef, 'encina!');
$parcela->write_formula(2, 6, '=""', undef, '');
$parcela->write_formula(1, 7, '=B2<1', undef, 'TRUE');
$parcela->write_formula(2, 7, '=B2>1', undef, 'FALSE');
$parcela->write_formula(3, 7, '=1/0', undef, '#DIV/0!');
$parcela->write_string(5, 0, 'z' x 300);
$parcela->write_comment(1, 1, 'Una nota que no es de la tabla');
my $incrustado = $libro->add_chart(type => 'line', embedded => 1);
$incrustado->add_series(values => '=Parcela!$B$2:$B$4');
$parcela->insert_chart('D10', $incrustado);

$libro->add_worksheet("L'Estany")->write(0, 0, [['v', 42]]);
$libro->add_worksheet('Años')->write_string(0, 0, 'ü');
my $suelto = $libro->add_chart(type => 'column', name => 'Grafico');
$suelto->add_series(values => '=Parcela!$B$2:$B$4');
my $lejana = $libro->add_worksheet('Lejana');
$lejana->write_string(9, 3, 'lejos');
my $oculta = $libro->add_worksheet('Oculta');
$oculta->write(0, 0, [['h', 1]]);
$oculta->hide();
$libro->add_worksheet('Tras el gráfico')->write_string(0, 0, 'último');
$libro->define_name('Zona', '=Parcela!$A$1:$B$4');
$libro->close() or die "no se puede escribir $ARGV[0]: $!";
