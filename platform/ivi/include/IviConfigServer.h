#ifndef IVI_CONFIG_SERVER_H
#define IVI_CONFIG_SERVER_H

/**
 * IVI configuration component: what a driver reads about a session from the configuration store.
 *
 * A store object is made by IviConfig_Initialize, filled by IviConfig_Deserialize and ended by IviConfig_Close, which
 * also ends every handle still open on it. All other handles are given back with IviConfig_DisposeHandle. A handle is
 * checked for its kind before it is used: a null, foreign, disposed or wrong one is IVICONFIG_ERROR_INVALID_HANDLE.
 * Several threads may work at once, on one store or on many.
 *
 * Collections count from 1. Text outputs follow the buffer rule told in IviCShared.h. A null output pointer is
 * IVI_ERROR_NULL_POINTER. An output handle is null after a failure; other outputs are left alone. Every failure
 * leaves a text for the calling thread, read with IviConfig_GetError.
 */

#include "IviCShared.h"

#if defined(__cplusplus)
extern "C" {
#endif
#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility push(default)
#endif

#define IVICONFIG_ERROR_DESERIALIZE_FAILED ((ViStatus)0xBFFA1200u)
#define IVICONFIG_ERROR_ALREADY_DESERIALIZED ((ViStatus)0xBFFA1201u)
#define IVICONFIG_ERROR_SERIALIZE_FAILED ((ViStatus)0xBFFA1202u)
#define IVICONFIG_ERROR_SESSION_NOT_FOUND ((ViStatus)0xBFFA1203u)
#define IVICONFIG_ERROR_NOT_IN_GLOBAL ((ViStatus)0xBFFA1204u)
#define IVICONFIG_ERROR_ALREADY_EXIST ((ViStatus)0xBFFA1205u)
#define IVICONFIG_ERROR_MASTER_NOT_FOUND ((ViStatus)0xBFFA1206u)
#define IVICONFIG_ERROR_NOT_EXIST ((ViStatus)0xBFFA1207u)
#define IVICONFIG_ERROR_INVALID_DATA_COMPONENT ((ViStatus)0xBFFA1208u)
#define IVICONFIG_ERROR_LOCAL_REFERENCE_EXIST ((ViStatus)0xBFFA1209u)
#define IVICONFIG_ERROR_INVALID_HANDLE ((ViStatus)0xBFFA1220u)
#define IVICONFIG_ERROR_INVALID_PROPERTY_ID ((ViStatus)0xBFFA1221u)
#define IVICONFIG_ERROR_NOT_SUPPORTED ((ViStatus)0xBFFA1222u)
#define IVICONFIG_ERROR_MASTER_REGISTRY_CONFLICT ((ViStatus)0xBFFA1223u)
#define IVICONFIG_ERROR_DATA_DIR_REGISTRY_CONFLICT ((ViStatus)0xBFFA1224u)

/* Property numbers. 1 and 2 mean the same for every class that has them. */
#define IVICONFIG_PROP_NAME 1
#define IVICONFIG_PROP_DESCRIPTION 2

#define IVICONFIG_PROP_STORE_MASTER_LOCATION 3
#define IVICONFIG_PROP_STORE_ACTUAL_LOCATION 4
#define IVICONFIG_PROP_STORE_PROCESS_DEFAULT_LOCATION 5
#define IVICONFIG_PROP_STORE_REVISION 6
#define IVICONFIG_PROP_STORE_VENDOR 7
#define IVICONFIG_PROP_STORE_MAJOR_VERSION 8
#define IVICONFIG_PROP_STORE_MINOR_VERSION 9

#define IVICONFIG_PROP_HARDWARE_ASSET_RESOURCE_DESCRIPTOR 3

#define IVICONFIG_PROP_SESSION_SOFTWARE_MODULE_NAME 3
#define IVICONFIG_PROP_DRIVER_SESSION_CACHE 4
#define IVICONFIG_PROP_DRIVER_SESSION_INTERCHANGE_CHECK 5
#define IVICONFIG_PROP_DRIVER_SESSION_QUERY_INSTR_STATUS 6
#define IVICONFIG_PROP_DRIVER_SESSION_RANGE_CHECK 7
#define IVICONFIG_PROP_DRIVER_SESSION_RECORD_COERCIONS 8
#define IVICONFIG_PROP_DRIVER_SESSION_SIMULATE 9
#define IVICONFIG_PROP_DRIVER_SESSION_DRIVER_SETUP 10

#define IVICONFIG_PROP_VIRTUAL_NAME_MAP_TO 2
#define IVICONFIG_PROP_VIRTUAL_RANGE_MIN 2
#define IVICONFIG_PROP_VIRTUAL_RANGE_MAX 3
#define IVICONFIG_PROP_VIRTUAL_RANGE_STARTING_PHYSICAL_INDEX 4
#define IVICONFIG_PROP_PHYSICAL_NAME_RC_NAME 2

#define IVICONFIG_PROP_DATA_COMPONENT_HELP_CONTEXT_ID 3
#define IVICONFIG_PROP_DATA_COMPONENT_HELP_FILE_PATH 4
#define IVICONFIG_PROP_DATA_COMPONENT_READ_ONLY 5
#define IVICONFIG_PROP_DATA_COMPONENT_SOFTWARE_MODULE_KEY 6
#define IVICONFIG_PROP_DATA_COMPONENT_TYPE 7
#define IVICONFIG_PROP_DATA_COMPONENT_USED_IN_SESSION 8
#define IVICONFIG_PROP_DATA_COMPONENT_VALUE 9
#define IVICONFIG_PROP_DATA_COMPONENT_UNITS 10

/* One type under many names: a driver session stands in for a session, and either for a component. */
typedef void* IviConfigHandle;
typedef IviConfigHandle IviConfigStoreHandle;
typedef IviConfigHandle IviConfigComponentHandle;
typedef IviConfigHandle IviSessionHandle;
typedef IviConfigHandle IviDriverSessionHandle;
typedef IviConfigHandle IviHardwareAssetHandle;
typedef IviConfigHandle IviSoftwareModuleHandle;
typedef IviConfigHandle IviSoftwareModuleCollectionHandle;
typedef IviConfigHandle IviVirtualNameHandle;
typedef IviConfigHandle IviVirtualNameCollectionHandle;
typedef IviConfigHandle IviVirtualRangeHandle;
typedef IviConfigHandle IviVirtualRangeCollectionHandle;
typedef IviConfigHandle IviPhysicalNameHandle;
typedef IviConfigHandle IviPhysicalNameCollectionHandle;
typedef IviConfigHandle IviDataComponentHandle;
typedef IviConfigHandle IviDataComponentCollectionHandle;

/** Creates a store object without content. Each takes one IviConfig_Close. */
ViStatus _VI_FUNC IviConfig_Initialize(IviConfigStoreHandle* store);
ViStatus _VI_FUNC IviConfig_Close(IviConfigStoreHandle store);

/** Gives a handle back. A store handle is refused: it goes to IviConfig_Close. */
ViStatus _VI_FUNC IviConfig_DisposeHandle(IviConfigHandle handle);

/** Gives the calling thread's last error text out, empty when there is none, and clears it when it went out whole. */
ViStatus _VI_FUNC IviConfig_GetError(ViInt32 bufferSize, ViChar description[]);
ViStatus _VI_FUNC IviConfig_ClearError(void);

/**
 * Loads the store from a file, once per store object.
 *
 * The master location may be absent: the store then holds the embedded driver's software module and nothing else. Any
 * other file that is missing, unreadable or no configuration store is IVICONFIG_ERROR_DESERIALIZE_FAILED; the text
 * names the file and the place in it, and the object may be used for another attempt.
 */
ViStatus _VI_FUNC IviConfig_Deserialize(IviConfigStoreHandle store, ViConstString location);

/**
 * Writes the store to a file, with everything in it that the component itself does not read. The file is replaced at
 * once or not at all: IVICONFIG_ERROR_SERIALIZE_FAILED leaves what was there.
 */
ViStatus _VI_FUNC IviConfig_Serialize(IviConfigStoreHandle store, ViConstString location);

/**
 * Finds a driver session: what the logical name of that name refers to, else the driver session that bears the name
 * itself. Names compare byte for byte. IVICONFIG_ERROR_SESSION_NOT_FOUND when there is neither.
 */
ViStatus _VI_FUNC IviConfig_GetDriverSession(IviConfigStoreHandle store, ViConstString name,
                                             IviDriverSessionHandle* session);

/** The same over sessions of every kind; a driver session found here may be used as one. */
ViStatus _VI_FUNC IviConfig_GetSession(IviConfigStoreHandle store, ViConstString name, IviSessionHandle* session);

/** Properties 1 to 7. */
ViStatus _VI_FUNC IviConfig_GetConfigStorePropertyViString(IviConfigStoreHandle store, ViInt32 property,
                                                           ViInt32 bufferSize, ViChar value[]);

/**
 * Properties 1 and 2 of this store; 5 sets the environment variable IVICONFIGSERVERDEFAULT, which stores initialised
 * later read, and is as safe beside other threads as setenv is. The rest is read-only.
 */
ViStatus _VI_FUNC IviConfig_SetConfigStorePropertyViString(IviConfigStoreHandle store, ViInt32 property,
                                                           ViConstString value);

/** Properties 8 and 9. */
ViStatus _VI_FUNC IviConfig_GetConfigStorePropertyViInt32(IviConfigStoreHandle store, ViInt32 property, ViInt32* value);

ViStatus _VI_FUNC IviConfig_GetConfigStoreSoftwareModuleCollection(IviConfigStoreHandle store,
                                                                   IviSoftwareModuleCollectionHandle* collection);
/** IVICONFIG_ERROR_NOT_EXIST when no module bears the name. */
ViStatus _VI_FUNC IviConfig_GetSoftwareModuleItemByName(IviSoftwareModuleCollectionHandle collection,
                                                        ViConstString name, IviSoftwareModuleHandle* item);

/** IVICONFIG_ERROR_NOT_IN_GLOBAL when the session refers to no software module, as after its uninstallation. */
ViStatus _VI_FUNC IviConfig_GetSessionSoftwareModuleReference(IviSessionHandle session,
                                                              IviSoftwareModuleHandle* module);
/** A session without a hardware asset gives a null handle and VI_SUCCESS. */
ViStatus _VI_FUNC IviConfig_GetSessionHardwareAssetReference(IviSessionHandle session, IviHardwareAssetHandle* asset);

/** Properties 1 to 3. */
ViStatus _VI_FUNC IviConfig_GetHardwareAssetPropertyViString(IviHardwareAssetHandle asset, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]);
/** Properties 4 to 9. */
ViStatus _VI_FUNC IviConfig_GetDriverSessionPropertyViBoolean(IviDriverSessionHandle session, ViInt32 property,
                                                              ViBoolean* value);
/** Properties 1 to 3 and 10. */
ViStatus _VI_FUNC IviConfig_GetDriverSessionPropertyViString(IviDriverSessionHandle session, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]);

ViStatus _VI_FUNC IviConfig_GetSessionVirtualNameCollection(IviSessionHandle session,
                                                            IviVirtualNameCollectionHandle* collection);
ViStatus _VI_FUNC IviConfig_GetVirtualNameCount(IviVirtualNameCollectionHandle collection, ViInt32* count);
/** By index, here and below: IVICONFIG_ERROR_NOT_EXIST outside 1 to the count. */
ViStatus _VI_FUNC IviConfig_GetVirtualNameItemByIndex(IviVirtualNameCollectionHandle collection, ViInt32 index,
                                                      IviVirtualNameHandle* item);
/** Properties 1 and 2. */
ViStatus _VI_FUNC IviConfig_GetVirtualNamePropertyViString(IviVirtualNameHandle item, ViInt32 property,
                                                           ViInt32 bufferSize, ViChar value[]);

ViStatus _VI_FUNC IviConfig_GetVirtualNameVirtualRangeCollection(IviVirtualNameHandle item,
                                                                 IviVirtualRangeCollectionHandle* collection);
ViStatus _VI_FUNC IviConfig_GetVirtualRangeCount(IviVirtualRangeCollectionHandle collection, ViInt32* count);
ViStatus _VI_FUNC IviConfig_GetVirtualRangeItemByIndex(IviVirtualRangeCollectionHandle collection, ViInt32 index,
                                                       IviVirtualRangeHandle* item);
/** Properties 2 to 4. */
ViStatus _VI_FUNC IviConfig_GetVirtualRangePropertyViInt32(IviVirtualRangeHandle item, ViInt32 property,
                                                           ViInt32* value);

ViStatus _VI_FUNC IviConfig_GetSoftwareModulePhysicalNameCollection(IviSoftwareModuleHandle module,
                                                                    IviPhysicalNameCollectionHandle* collection);
ViStatus _VI_FUNC IviConfig_GetPhysicalNameCount(IviPhysicalNameCollectionHandle collection, ViInt32* count);
ViStatus _VI_FUNC IviConfig_GetPhysicalNameItemByIndex(IviPhysicalNameCollectionHandle collection, ViInt32 index,
                                                       IviPhysicalNameHandle* item);
/** Properties 1 and 2. */
ViStatus _VI_FUNC IviConfig_GetPhysicalNamePropertyViString(IviPhysicalNameHandle item, ViInt32 property,
                                                            ViInt32 bufferSize, ViChar value[]);

/** The component is a software module, a hardware asset, a session or a driver session. */
ViStatus _VI_FUNC IviConfig_GetConfigComponentDataComponentCollection(IviConfigComponentHandle component,
                                                                      IviDataComponentCollectionHandle* collection);
/** IVICONFIG_ERROR_NOT_EXIST when no data component of the collection bears the name. */
ViStatus _VI_FUNC IviConfig_GetDataComponentItemByName(IviDataComponentCollectionHandle collection, ViConstString name,
                                                       IviDataComponentHandle* item);
/** IVICONFIG_ERROR_INVALID_DATA_COMPONENT when the data component is no structure. */
ViStatus _VI_FUNC IviConfig_GetStructureDataComponentCollection(IviDataComponentHandle structure,
                                                                IviDataComponentCollectionHandle* collection);
ViStatus _VI_FUNC IviConfig_GetDataComponentCount(IviDataComponentCollectionHandle collection, ViInt32* count);
ViStatus _VI_FUNC IviConfig_GetDataComponentItemByIndex(IviDataComponentCollectionHandle collection, ViInt32 index,
                                                        IviDataComponentHandle* item);

/**
 * Properties of a data component. The value (9) is read by the function of the component's type, and asking for it by
 * another is IVICONFIG_ERROR_INVALID_DATA_COMPONENT. Besides it: texts 1, 2, 4, 6, 7, 8 and, of numbers, 10; integer 3;
 * boolean 5. Property 7 is "Structure", "Boolean", "Integer", "Real", "String" or "APIReference".
 */
ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViString(IviDataComponentHandle item, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]);
ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViInt32(IviDataComponentHandle item, ViInt32 property,
                                                            ViInt32* value);
ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViReal64(IviDataComponentHandle item, ViInt32 property,
                                                             ViReal64* value);
ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViBoolean(IviDataComponentHandle item, ViInt32 property,
                                                              ViBoolean* value);

#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility pop
#endif
#if defined(__cplusplus)
}
#endif

#endif
