# Validates the sample catalogue, what else the library takes, and what authors get wrong.

function(expect result schema)
    execute_process(COMMAND ${XMLLINT} --noout --schema ${DOCS}/${schema}-file.xsd ${ARGN}
        RESULT_VARIABLE actual OUTPUT_QUIET ERROR_VARIABLE messages)
    if(NOT actual EQUAL result)
        file(READ ${ARGV2} text)
        message(SEND_ERROR "xmllint answers ${actual}, not ${result}:\n${messages}${text}")
    endif()
endfunction()

function(expect_product result attributes contents)
    set(file ${SCRATCH}/schema-product.xml)
    file(WRITE ${file} "<productdescription><product ${attributes}>${contents}</product></productdescription>")
    expect(${result} product ${file})
endfunction()

set(valid 0)
set(invalid 3)

file(GLOB products ${SAMPLE}/products/*.xml ${SAMPLE}/products/legacy/*.xml)
file(GLOB themes ${SAMPLE}/themes/*.xml ${SAMPLE}/themes/*.XML)
expect(${valid} product ${products})
expect(${valid} theme ${themes})

expect_product(${valid} "" "")
expect_product(${valid} "safetymargin=' 30 ' hasHook=' Yes ' binding=' clampcover ' orientation=''" "")
expect_product(${valid} "assemblyWay='client, FACTORY' paper='Unbekanntes papier'" "")
expect_product(${valid} "" "<surroundings/><pages>\n spine,\n Normalpages\n</pages><spines/><surroundings/>")
expect_product(${valid} "" "<contentredirects><contentredirect from='3 - 7' to='1'/></contentredirects>")
foreach(attribute safetyMargin='30' safetymargin='24,5' safetymargin='' hasHook='ja' binding='HARDCOVR'
        binding='LEATHER,FOIL' space='600cm2,' space='600cm2|xl')
    expect_product(${invalid} ${attribute} "")
endforeach()
foreach(element "<spine pages='26'/>" "<pages>spine normalpages</pages>" "<pages/>"
        "<pageswithcontent>1,x</pageswithcontent>" "<classification group='poster'/>" "<defaults theme='normal'/>")
    expect_product(${invalid} "" ${element})
endforeach()

set(theme ${SCRATCH}/schema-theme.xml)
foreach(expiry 205012312359 2050-12-31 2050-12-31T23:59 2050-12-31T23:59:00+01:00)
    file(WRITE ${theme} "<themes><theme expiry='${expiry}'/></themes>")
    expect(${valid} theme ${theme})
endforeach()
foreach(expiry 31.12.2050 20501231 20501231235900)
    file(WRITE ${theme} "<themes><theme expiry='${expiry}'/></themes>")
    expect(${invalid} theme ${theme})
endforeach()
