#!/usr/bin/env python3
"""Writes the built-in language table of the locale database.

Each row says: this language, written in this script, is used in these regions, and its legacy
encoding there is this one (or none, meaning UTF-8). The rows are derived from Unicode CLDR's
supplemental data (who uses which language and script where, likely subtags) and from glibc's
list of supported locales with their charsets, restricted to the names the library's built-in
name tables hold. A short list of product decisions, below, fixes what the data cannot say.

Standard library only; see README.md for the inputs and how to rerun it.
"""

import argparse
import os
import re
import sys
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, '..', '..'))
DATA_DIR = os.path.join(ROOT, 'src', 'i18n', 'lcmgmt')

# --- Product decisions -----------------------------------------------------------------------
# Legacy encodings the product has always used where glibc offers none (or another one) for the
# language and script. Keyed by (language, script).
LEGACY_ENCODING = {
    ('ja', 'Jpan'): 'Shift_JIS',  # the desktop world's Japanese encoding, not glibc's EUC-JP
    ('az', 'Latn'): 'ISO-8859-9',
    ('az', 'Cyrl'): 'ISO-8859-5',
    ('az', 'Arab'): 'ISO-8859-6',
    ('sr', 'Latn'): 'ISO-8859-2',
    ('sr', 'Cyrl'): 'ISO-8859-5',
}

# Rows whose shape older data files and users depend on. Fixed rows replace every derived row of
# their language and script: (language, script, regions, encoding, is_default), None for "none".
FIXED_ROWS = [
    ('aa', 'Latn', 'DJ', 'ISO-8859-1', 1),
    ('aa', None, 'DJ ER ET', 'UTF-8', 0),
    ('az', 'Cyrl', 'AZ', 'ISO-8859-5', 0),
    ('az', 'Latn', 'AZ', 'ISO-8859-9', 0),
    ('az', 'Arab', 'AZ', 'ISO-8859-6', 0),
    ('az', None, 'AZ', 'UTF-8', 1),
    ('ko', 'Kore', 'KP KR', 'EUC-KR', 1),
]

# glibc modifiers that name a script; other modifiers (dialects, spelling reforms) are left out,
# and "euro" only tells the euro-capable charset.
MODIFIER_SCRIPT = {'latin': 'Latn', 'cyrillic': 'Cyrl', 'devanagari': 'Deva', 'iqtelif': 'Latn'}


def read_cpp_array(path, name):
    text = open(path, encoding='utf-8').read()
    m = re.search(r'\b' + re.escape(name) + r'\[\]\s*=\s*\{(.*?)\};', text, re.S)
    if not m:
        sys.exit('%s: array %s not found' % (path, name))
    return m.group(1)


def read_string_array(path, name):
    # Adjacent literals are one string, as the compiler sees them.
    body = read_cpp_array(path, name)
    return [''.join(re.findall(r'"([^"]*)"', item))
            for item in re.findall(r'((?:\s*"[^"]*")+)\s*,', body)]


def read_encodings(path):
    """Maps a loose key (lower case, no '-' or '_') of every name and alias to the name."""
    rows = re.findall(r'\{"([^"]+)",\s*(?:nullptr|"[^"]*"),\s*(\d+),\s*(\d+)\}',
                      read_cpp_array(path, 'encoding_rows'))
    aliases = read_string_array(path, 'encoding_alias_names')
    names = []
    lookup = {}
    for name, first, count in rows:
        names.append(name)
        for n in [name] + aliases[int(first):int(first) + int(count)]:
            lookup.setdefault(loose(n), name)
    return names, lookup


def loose(name):
    return re.sub(r'[-_]', '', name.lower())


class Cldr:
    def __init__(self, directory, languages):
        supplemental = ET.parse(os.path.join(directory, 'supplementalData.xml')).getroot()
        self.primary = {}
        self.secondary = {}
        for e in supplemental.find('languageData'):
            lang = e.get('type')
            if lang not in languages:
                continue
            entry = (e.get('scripts', '').split(), e.get('territories', '').split())
            target = self.secondary if e.get('alt') == 'secondary' else self.primary
            target.setdefault(lang, []).append(entry)
        # (language, script or None) -> territories where CLDR counts its speakers
        self.population = {}
        for territory in supplemental.find('territoryInfo'):
            for p in territory.findall('languagePopulation'):
                parts = p.get('type').split('_')
                key = (parts[0], parts[1] if len(parts) > 1 else None)
                self.population.setdefault(key, set()).add(territory.get('type'))
        likely = ET.parse(os.path.join(directory, 'likelySubtags.xml')).getroot()
        self.likely = {}
        for s in likely.iter('likelySubtag'):
            self.likely[s.get('from')] = s.get('to').split('_')

    def likely_subtags(self, *keys):
        for key in keys:
            if key in self.likely:
                return self.likely[key]
        return None

    def likely_script(self, lang, territory=None):
        keys = ([lang + '_' + territory] if territory else []) + [lang]
        found = self.likely_subtags(*keys)
        return found[1] if found and found[0] == lang and len(found) == 3 else None

    def likely_region(self, lang, script=None):
        keys = ([lang + '_' + script] if script else []) + [lang]
        found = self.likely_subtags(*keys)
        return found[-1] if found and found[0] == lang else None


class Glibc:
    """Supported locales: language -> territory -> [(codeset in name, modifier, charset)]."""

    def __init__(self, path, languages):
        self.locales = {}
        for line in open(path, encoding='utf-8'):
            fields = line.split()
            if len(fields) != 2:
                continue
            m = re.match(r'^([a-z]{2,3})_([A-Z]{2})(?:\.([^@]+))?(?:@(\w+))?$', fields[0])
            if not m or m.group(1) not in languages:
                continue
            lang, territory, codeset, modifier = m.groups()
            self.locales.setdefault(lang, {}).setdefault(territory, []).append(
                (codeset, modifier, fields[1]))

    def territories(self, lang):
        return set(self.locales.get(lang, {}))

    def charsets(self, lang, territory, script, default_script):
        """(plain charset, euro charset) of the locale for the script, UTF-8 counting as none."""
        plain = euro = None
        named = []
        for codeset, modifier, charset in self.locales.get(lang, {}).get(territory, []):
            if charset == 'UTF-8':
                continue
            if modifier == 'euro':
                euro = charset
                continue
            wanted = MODIFIER_SCRIPT.get(modifier) if modifier else default_script
            if modifier and modifier not in MODIFIER_SCRIPT:
                continue
            if script is not None and wanted is not None and wanted != script:
                continue
            if codeset is None:
                plain = charset
            else:
                named.append(charset)
        if plain is None and len(named) == 1:
            plain = named[0]
        return plain, euro


class Generator:
    def __init__(self, args):
        names = os.path.join(args.data_dir, 'lcdb_names_data.cpp')
        self.languages = read_string_array(names, 'language_names')
        self.scripts = read_string_array(names, 'script_names')
        self.regions = read_string_array(names, 'region_names')
        self.encodings, self.encoding_lookup = read_encodings(
            os.path.join(args.data_dir, 'lcdb_encoding_data.cpp'))
        language_set = set(self.languages)
        self.cldr = Cldr(args.cldr_dir, language_set)
        self.glibc = Glibc(args.supported, language_set)
        self.region_sets = [(r, set(r.split())) for r in self.regions]

    def encoding(self, charset):
        return self.encoding_lookup.get(loose(charset)) if charset else None

    def region_strings(self, territories, main):
        """The listed region string for a set of territories: the same set, else the listed set
        of several regions closest to it (shared regions over all regions, at least 0.4; the one
        with the main region first), else the main region alone."""
        territories = set(territories)
        if not territories:
            return None
        best = None
        for name, members in self.region_sets:
            shared = len(members & territories)
            if shared < min(2, len(territories)) or (len(members) == 1 and len(territories) > 1):
                continue
            score = shared / len(members | territories)
            rank = (-score, main not in members, name)
            if score >= 0.4 and (best is None or rank < best[0]):
                best = (rank, name)
        if best:
            return best[1]
        pick = main if main in territories else sorted(territories)[0]
        return pick if pick in self.regions else None

    def script_string(self, scripts):
        joined = ' '.join(scripts)
        return joined if joined in self.scripts else None

    def partition(self, lang, script, territories):
        """Splits the regions of a language and script by their legacy encoding; a region
        without one goes with the language's main region."""
        policy = LEGACY_ENCODING.get((lang, script))
        main = self.cldr.likely_region(lang, script)
        if main not in territories:
            main = sorted(territories)[0] if territories else None
        if policy or not territories:
            return [(territories, policy)]
        plain = {}
        euro = {}
        for t in territories:
            default_script = self.cldr.likely_script(lang, t)
            p, e = self.glibc.charsets(lang, t, script, default_script)
            plain[t] = self.encoding(p)
            euro[t] = self.encoding(e)
        groups = {}
        for t in sorted(territories):
            key = plain[t] if plain[t] is not None else plain.get(main)
            groups.setdefault(key, set()).add(t)
        result = []
        for key, members in groups.items():
            # The euro-capable charset of the group's leading region stands for the group.
            lead = main if main in members else sorted(members)[0]
            result.append((members, euro[lead] or key, main in members))
        result.sort(key=lambda g: (not g[2], sorted(g[0])))
        return [(members, enc) for members, enc, _ in result]

    def script_territories(self, lang, script, scripts, territories):
        if len(scripts) == 1:
            return set(territories)
        used = set()
        for t in territories:
            here = self.cldr.population.get((lang, script), set())
            bare = self.cldr.population.get((lang, None), set())
            if t in here or (t in bare and self.cldr.likely_script(lang, t) == script):
                used.add(t)
        return used or set(territories)

    def rows_of(self, lang):
        rows = []

        def add(script, territories, encoding, secondary=False):
            main = self.cldr.likely_region(lang, script)
            region = self.region_strings(territories, main)
            if territories and region is None:
                return
            if script is not None and script not in self.scripts:
                return
            rows.append({'script': script, 'region': region, 'encoding': encoding,
                         'secondary': secondary})

        primary = self.cldr.primary.get(lang, [])
        secondary = list(self.cldr.secondary.get(lang, []))
        with_regions = [e for e in primary if e[1]]
        for scripts, territories in with_regions:
            for script in scripts:
                used = self.script_territories(lang, script, scripts, territories)
                for members, encoding in self.partition(lang, script, used):
                    add(script, members, encoding)
        if not with_regions:
            # A language CLDR lists without regions takes the regions of its secondary use and
            # of glibc's locales, so that one row says where it is used.
            extra = set(self.glibc.territories(lang))
            for scripts, territories in secondary:
                extra |= set(territories)
            secondary = []
            script_rows = [e[0] for e in primary if e[0]]
            if not script_rows:
                likely = self.cldr.likely_script(lang)
                script_rows = [[likely] if likely else []]
                main = self.cldr.likely_region(lang)
                if main:
                    extra.add(main)
            for scripts in script_rows:
                script = self.script_string(scripts)
                if script is None and scripts:
                    script = next((s for s in scripts if s in self.scripts), None)
                for members, encoding in self.partition(lang, script, extra):
                    add(script, members, encoding)
        for scripts, territories in secondary:
            add(self.script_string(scripts), set(territories), None, secondary=True)
        self.cover_glibc(lang, rows)
        return rows

    def cover_glibc(self, lang, rows):
        """glibc locales in regions no row names get a row of their own, without a script."""
        covered = set()
        for row in rows:
            covered |= set(row['region'].split()) if row['region'] else set()
        missing = self.glibc.territories(lang) - covered
        if not missing or any(row['region'] is None for row in rows):
            return
        for members, encoding in self.partition(lang, None, missing):
            region = self.region_strings(members, None)
            if region:
                rows.append({'script': None, 'region': region, 'encoding': encoding or 'UTF-8',
                             'secondary': False})

    def apply_fixed(self, lang, rows):
        fixed = [r for r in FIXED_ROWS if r[0] == lang]
        if not fixed:
            return rows
        scripts = set(r[1] for r in fixed)
        rows = [r for r in rows if r['script'] not in scripts]
        for _, script, region, encoding, is_default in fixed:
            rows.append({'script': script, 'region': region, 'encoding': encoding,
                         'secondary': False, 'fixed': is_default})
        return rows

    def mark_defaults(self, lang, rows):
        """Where several rows of a language name one region, the row with the fewest regions
        wins it (a row without a script first, then the language's usual script) and becomes a
        default row."""
        usual = self.cldr.likely_script(lang)
        for row in rows:
            row['default'] = row.get('fixed', 0)
        if any('fixed' in row for row in rows):
            decided = set()
            for row in rows:
                if row.get('fixed') == 1:
                    decided |= set(row['region'].split())
        else:
            decided = set()
        contested = {}
        for i, row in enumerate(rows):
            for t in (row['region'].split() if row['region'] else []):
                contested.setdefault(t, []).append(i)
        for t, members in contested.items():
            if len(members) < 2 or t in decided:
                continue
            if any(rows[i].get('fixed') == 1 for i in members):
                continue

            def rank(i):
                row = rows[i]
                return (len(row['region'].split()), row['secondary'], row['script'] is not None,
                        row['script'] != usual, i)
            winner = min(members, key=rank)
            if 'fixed' not in rows[winner]:
                rows[winner]['default'] = 1

    def table(self):
        out = []
        for lang in self.languages:
            rows = self.apply_fixed(lang, self.rows_of(lang))
            unique = []
            for row in rows:
                key = (row['script'], row['region'], row['encoding'])
                if key not in [(u['script'], u['region'], u['encoding']) for u in unique]:
                    unique.append(row)
            self.mark_defaults(lang, unique)
            for row in unique:
                out.append((lang, row['script'], row['region'], row['encoding'], row['default']))
        return out

    def render(self, table):
        def index(names, value):
            return 'none' if value is None else str(names.index(value))

        lines = []
        for lang, script, region, encoding, is_default in table:
            fields = [str(self.languages.index(lang)), index(self.scripts, script),
                      index(self.regions, region), index(self.encodings, encoding),
                      str(is_default)]
            comment = '%s | %s | %s | %s' % (lang, script or '-', region or '-', encoding or '-')
            line = '    {%s},  // %s' % (', '.join(fields), comment)
            lines.append(line if len(line) <= 100 else line[:97] + '...')
        return TEMPLATE.format(rows='\n'.join(lines), count=len(table),
                               defaults=sum(1 for r in table if r[4]))


TEMPLATE = '''\
// Generated by tools/lcdb_gen/generate_language_table.py from Unicode CLDR's supplemental data
// and glibc's list of supported locales. Do not edit: change the generator and rerun it.
// {count} rows, {defaults} of them default rows.
#include "i18n/lcmgmt/lcdb_builtin_data.hpp"

namespace fl {{
namespace i18n {{
namespace lcmgmt {{
namespace builtin {{
namespace {{
constexpr std::uint16_t none = no_index;
}}  // namespace

// language, script, region, encoding, is_default
// clang-format off
language_entry const language_rows[] = {{
{rows}
}};
// clang-format on
std::size_t const language_row_count = sizeof(language_rows) / sizeof(language_rows[0]);

}}  // namespace builtin
}}  // namespace lcmgmt
}}  // namespace i18n
}}  // namespace fl
'''


def write_extract(args, directory):
    """Copies the parts of the inputs that the generator reads, for the languages it knows.

    The regeneration test runs on this extract, so a newer CLDR or glibc on the machine can't
    change its answer; refreshing the table means refreshing the extract first.
    """
    names = os.path.join(args.data_dir, 'lcdb_names_data.cpp')
    languages = set(read_string_array(names, 'language_names'))
    os.makedirs(directory, exist_ok=True)

    def known(type_text):
        return type_text.split('_')[0] in languages

    supplemental = ET.parse(os.path.join(args.cldr_dir, 'supplementalData.xml')).getroot()
    kept = ET.Element('supplementalData')
    language_data = ET.SubElement(kept, 'languageData')
    language_data.extend(e for e in supplemental.find('languageData') if known(e.get('type')))
    territory_info = ET.SubElement(kept, 'territoryInfo')
    for territory in supplemental.find('territoryInfo'):
        populations = [p for p in territory.findall('languagePopulation') if known(p.get('type'))]
        if populations:
            ET.SubElement(territory_info, 'territory', type=territory.get('type')).extend(
                ET.Element('languagePopulation', type=p.get('type')) for p in populations)
    likely = ET.parse(os.path.join(args.cldr_dir, 'likelySubtags.xml')).getroot()
    kept_likely = ET.Element('supplementalData')
    subtags = ET.SubElement(kept_likely, 'likelySubtags')
    subtags.extend(ET.Element('likelySubtag', {'from': s.get('from'), 'to': s.get('to')})
                   for s in likely.iter('likelySubtag') if known(s.get('from')))
    for tree, name in ((kept, 'supplementalData.xml'), (kept_likely, 'likelySubtags.xml')):
        ET.indent(tree)
        ET.ElementTree(tree).write(os.path.join(directory, name), encoding='utf-8',
                                   xml_declaration=True)
    with open(args.supported, encoding='utf-8') as source, \
            open(os.path.join(directory, 'SUPPORTED'), 'w', encoding='utf-8') as target:
        target.writelines(line for line in source
                          if re.match(r'^([a-z]{2,3})_', line) and known(line.split()[0]))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument('--cldr-dir', default='/usr/share/unicode/cldr/common/supplemental')
    parser.add_argument('--supported', default='/usr/share/i18n/SUPPORTED')
    parser.add_argument('--data-dir', default=DATA_DIR,
                        help='directory of the name tables (lcdb_*_data.cpp)')
    parser.add_argument('--output', default=os.path.join(DATA_DIR, 'lcdb_language_table.cpp'))
    parser.add_argument('--check', metavar='FILE',
                        help='after writing, compare the output with FILE byte for byte; exit 1 '
                             'when they differ and 77 when an input is missing')
    parser.add_argument('--extract', metavar='DIR',
                        help='write the parts of the inputs the generator reads into DIR and stop')
    args = parser.parse_args()
    for path in (os.path.join(args.cldr_dir, 'supplementalData.xml'),
                 os.path.join(args.cldr_dir, 'likelySubtags.xml'), args.supported):
        if not os.path.exists(path):
            print('input missing: %s' % path, file=sys.stderr)
            sys.exit(77 if args.check else 2)
    if args.extract:
        write_extract(args, args.extract)
        return
    generator = Generator(args)
    text = generator.render(generator.table())
    with open(args.output, 'w', encoding='utf-8', newline='\n') as f:
        f.write(text)
    if args.check:
        with open(args.check, 'rb') as f:
            committed = f.read()
        if committed != text.encode('utf-8'):
            print('%s differs from the generator output %s' % (args.check, args.output),
                  file=sys.stderr)
            sys.exit(1)
        print('%s matches the generator output' % args.check)


if __name__ == '__main__':
    main()
