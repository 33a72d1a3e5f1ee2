# The tests of the item views and of the dialogs that they open.

tessera_test(tst_ItemRoles)
tessera_test_contract(ItemModelContract)
tessera_test(tst_TbModel LIBRARIES ItemModelContract SOURCES CellModels.h)
tessera_test(tst_TrModel LIBRARIES ItemModelContract SOURCES CellModels.h)
tessera_test(tst_StyledItemDelegate LIBRARIES Qt${TESSERA_QT}::${TESSERA_SVG_WIDGETS} SOURCES CellModels.h TestSupport.h data/pictures.qrc)
set_target_properties(tst_StyledItemDelegate PROPERTIES AUTORCC ON)
tessera_test(tst_ChangingCells SOURCES CellModels.h)
tessera_test(tst_DoubleCells SOURCES CellModels.h)
# The grid of the bit dialog is internal: its test brings its own copy, and the library must not show the other.
tessera_test(tst_CBitModel SOURCES CellModels.h
    ${PROJECT_SOURCE_DIR}/src/Tessera/views/CBitModel.cpp ${PROJECT_SOURCE_DIR}/src/Tessera/views/CBitModel.h)
add_test(NAME CBitModelIsHidden COMMAND ${CMAKE_COMMAND}
    -DNM=${CMAKE_NM} -DLIBRARY=$<TARGET_FILE:Tessera> "-DNAMES=CBitModel;CDigitsEdit;DigitsText"
    -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckHidden.cmake)
# So is what a pasted text means.
tessera_test(tst_DigitsText LIBRARIES ${TESSERA_TEST_HOST} SOURCES
    ${PROJECT_SOURCE_DIR}/src/Tessera/views/DigitsText.cpp ${PROJECT_SOURCE_DIR}/src/Tessera/views/DigitsText_p.h)
tessera_test(tst_CDigitsEdit)
tessera_test(tst_CBitDialog SOURCES ModalDriver.h)
tessera_test(tst_CPenDialog SOURCES ModalDriver.h)
tessera_test_contract(ItemKeyContract ItemViewContract.h)
tessera_test(tst_TbView LIBRARIES ItemKeyContract SOURCES CellModels.h ModalDriver.h)
tessera_test(tst_TrView LIBRARIES ItemKeyContract SOURCES CellModels.h ModalDriver.h)
