# The eight integer spin boxes: the contract of them all for each one, what they are made of, and how they hang together.
tessera_test_contract(IntegerSpinBoxContract)
foreach(test IN LISTS TESSERA_SPIN_BOX_TESTS)
    tessera_test(${test} LIBRARIES IntegerSpinBoxContract)
endforeach()
tessera_test(tst_IntegerStep)
tessera_test(tst_IntegerText LIBRARIES ${TESSERA_TEST_HOST})
tessera_test(tst_SpinBoxFamily DEFINITIONS TESSERA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
