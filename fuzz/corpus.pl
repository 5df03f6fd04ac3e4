#!/usr/bin/perl
# Makes a corpus of the texts that tests hold: each string literal, neighbours joined as the compiler joins them,
# becomes a file of the folder.
#
#   corpus.pl FOLDER TEST.cpp...
use strict;
use warnings;

my ($folder, @sources) = @ARGV;
my %letters = (n => "\n", r => "\r", t => "\t", 0 => "\0");
my $literal = qr/(?:u8?|L)?(?:R"\((.*?)\)"|"((?:[^"\\\n]|\\.)*)")(?:_s|_L1)?/s;

sub plain
{
    my ($text) = @_;
    $text =~ s{\\(?:x([0-9a-fA-F]{1,2})|u([0-9a-fA-F]{4})|([0-7]{2,3})|(.))}
              {defined $1 ? chr hex $1 : defined $2 ? utf8_of(hex $2) : defined $3 ? chr oct $3 : $letters{$4} // $4}gse;
    return $text;
}

sub utf8_of
{
    my $letter = chr shift;
    utf8::encode($letter);
    return $letter;
}

mkdir $folder;
my $count = 0;
for my $source (@sources) {
    open my $in, '<:raw', $source or die "$source: $!\n";
    my $code = do { local $/; <$in> };
    $code =~ s/^#include.*$//gm;
    while ($code =~ /($literal(?:[\s+]*$literal)*)/g) {
        my $run = $1;
        my $text = '';
        while ($run =~ /$literal/g) {
            $text .= defined $1 ? $1 : plain($2);
        }
        next if $text eq '';
        open my $out, '>:raw', sprintf('%s/%04d', $folder, ++$count) or die "$folder: $!\n";
        print $out $text;
    }
}
die "no text in @sources\n" unless $count;
