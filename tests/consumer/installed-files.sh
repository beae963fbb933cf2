#!/usr/bin/env bash
# What is installed is complete, is for others to see, and knows nothing of the machine that built it.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

prefix=$(prefix_of "$LAYOUT")
libdir=$prefix/$(libdir_of "$LAYOUT")
include=$prefix/include/Ombrel

for path in "$SOURCE_DIR" "$WORK_DIR" /opt/ombrel; do
    if files=$(grep -rlF -e "$path" "$prefix"); then
        fail "$path stands in $files"
    fi
done

# The libraries of this layout and no others.
if [[ $LAYOUT == shared-* ]]; then
    expected=$(printf '%s\n' libombrel-{effect-inspection,effect-settings,property-tree-json}.so{,."${VERSION%.*}",."$VERSION"} | sort)
else
    expected=$(printf '%s\n' libombrel-{effect-inspection,effect-settings,property-tree-json}.a)
fi
expect "libraries" "$expected" "$(find "$libdir" -mindepth 1 -maxdepth 1 -name 'lib*' -printf '%f\n' | sort)"

# Every header of the library is there but the private ones, and needs no other folder.
private_headers="
Inspection/Attempt.h
Inspection/CheckContext.h
Inspection/DiffWalk.h
Inspection/EffectCheck.h
Inspection/EffectMerge.h
Inspection/ElementOrder.h
Inspection/Findings.h
Inspection/Fingerprints.h
Inspection/FormDefaults.h
Inspection/KeylessMembers.h
Inspection/KnownClass.h
Inspection/ListAlignment.h
Inspection/ListMoves.h
Inspection/PackedTree.h
Inspection/Place.h
Inspection/RecordInfo.h
Inspection/RefusedEffects.h
Inspection/ReleaseCheck.h
Inspection/ReleaseModel.h
Inspection/SchemaParts.h
Inspection/SharedPaths.h
Inspection/TreeEditor.h
Inspection/TreeSteps.h
Inspection/Trials.h
Inspection/Usable.h
Inspection/ValueCheck.h
Inspection/Values.h
Inspection/WrittenComparison.h
Proc/EffectSettings/RegisteredClasses.h
Proc/EffectSettings/StoredTexts.h
Proc/EffectSettings/WrappingArithmetic.h
Proc/Settings/ScaledInteger.h
PropertyTree/Characters.h
PropertyTree/KindNames.h
PropertyTree/KnownTexts.h
PropertyTree/PropertyTreeKey.h
PropertyTree/PropertyTreeMapFiller.h
PropertyTree/PropertyTreeMapIndex.h
PropertyTree/PropertyTreeMapInternals.h
PropertyTreeJson/JsonFault.h
PropertyTreeJson/JsonNumber.h
PropertyTreeJson/JsonOutput.h
PropertyTreeJson/JsonPlaceTable.h
PropertyTreeJson/JsonScanner.h
PropertyTreeJson/JsonText.h
PropertyTreeJson/JsonTreeBuilder.h
PropertyTreeJson/MessageText.h
"
expected=$(cd "$SOURCE_DIR/src" &&
    find OmbrelCompiler.h OmbrelExport.h OmbrelLasting.h OmbrelVersion.h Conf Exception Inspection PhotoUtil Proc PropertyTree PropertyTreeJson -name '*.h' |
    grep -vxF "$(xargs -n1 <<<"$private_headers")" | sort)
expect "headers" "$expected" "$(cd "$include" && find . -name '*.h' -printf '%P\n' | sort)"
sed 's/.*/#include "&"/' <<<"$expected" | "$CXX" -std=c++20 -fsyntax-only -I "$include" -x c++ - ||
    fail "the installed headers do not compile"

expect "what shows trees in a debugger" "$(printf '%s\n' ombrel.natvis ombrel_gdb.py)" \
    "$(find "$prefix/share/ombrel-effect-settings" -type f -printf '%f\n' | sort)"

tool_files="
share/bash-completion/completions/ombrel-effects
share/fish/vendor_completions.d/ombrel-effects.fish
share/man/man1/ombrel-effects.1
share/zsh/site-functions/_ombrel-effects
"
expect "manual and completions of the tool" "$(xargs -n1 <<<"$tool_files")" \
    "$(cd "$prefix" && find share -type f -not -path 'share/ombrel-effect-settings/*' -not -path 'share/doc/*' | sort)"
expect "examples" "undo.cpp $(cd "$SOURCE_DIR/examples" && echo own-effect/*)" \
    "$(cd "$prefix"/share/doc/*/examples && echo *.cpp */*)"

# A shared library shows its interface alone: neither the parts of the reader nor the folds of the library's own records.
if [[ $LAYOUT == shared-* ]]; then
    for library in "$libdir"/*.so; do
        if symbols=$(nm -DC --defined-only "$library" | grep -E 'Ombrel::Json(Number|Output|Scanner|TreeBuilder)|Ombrel::Proc::Reflected<Ombrel'); then
            fail "$library exports $(head -3 <<<"$symbols")"
        fi
    done
    symbols=$(nm -DC --defined-only "$libdir/libombrel-effect-settings.so")
    [[ $symbols == *Ombrel::PhotoCore::IEffectSettings::CreateEffectSettings* ]] || fail "the factory is not exported"
fi
