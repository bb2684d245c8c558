// One sentence per status code.
#include "status_text.h"

#include <algorithm>
#include <iterator>

namespace tvr::visa {
namespace {

struct StatusSentence {
  ViStatus status;
  std::string_view text;
};

constexpr StatusSentence kSentences[] = {
    {VI_SUCCESS, "Done. A read has received the end of the message."},
    {VI_SUCCESS_EVENT_EN, "Event already enabled."},
    {VI_SUCCESS_EVENT_DIS, "Event already disabled."},
    {VI_SUCCESS_QUEUE_EMPTY, "Queue was already empty."},
    {VI_SUCCESS_TERM_CHAR, "Read ended at the termination character."},
    {VI_SUCCESS_MAX_CNT, "Read ended because the count was reached (neither END nor termchar seen)."},
    {VI_WARN_QUEUE_OVERFLOW, "Event queue overflowed."},
    {VI_WARN_CONFIG_NLOADED, "VI_LOAD_CONFIG asked for, nothing loaded."},
    {VI_SUCCESS_DEV_NPRESENT, "Opened, device does not answer."},
    {VI_SUCCESS_QUEUE_NEMPTY, "Event received, more are waiting."},
    {VI_WARN_NULL_OBJECT, "viClose was given VI_NULL; nothing was closed."},
    {VI_WARN_NSUP_ATTR_STATE, "Valid optional attribute state, not supported here."},
    {VI_WARN_UNKNOWN_STATUS, "The status code is not known to this library."},
    {VI_WARN_NSUP_BUF, "Buffer cannot be set."},
    {VI_SUCCESS_NCHAIN, "Event handled, no other handler is to be called."},
    {VI_SUCCESS_NESTED_SHARED, "Nested shared lock."},
    {VI_SUCCESS_NESTED_EXCLUSIVE, "Nested exclusive lock."},
    {VI_SUCCESS_SYNC, "Asynchronous call done synchronously."},
    {VI_WARN_EXT_FUNC_NIMPL, "Extended function missing in lower layer."},
    {VI_ERROR_SYSTEM_ERROR, "VISA failed to initialise."},
    {VI_ERROR_INV_OBJECT, "The session or object handle is not valid."},
    {VI_ERROR_RSRC_LOCKED, "Locked by another session."},
    {VI_ERROR_INV_EXPR, "Bad search expression."},
    {VI_ERROR_RSRC_NFOUND, "No such resource: unknown host, connection refused, or no route."},
    {VI_ERROR_INV_RSRC_NAME, "The resource descriptor is malformed."},
    {VI_ERROR_INV_ACC_MODE, "Bad access mode."},
    {VI_ERROR_TMO, "Time-out: the operation was not complete within VI_ATTR_TMO_VALUE."},
    {VI_ERROR_CLOSING_FAILED, "Close could not free resources."},
    {VI_ERROR_INV_DEGREE, "The degree of viTerminate must be VI_NULL."},
    {VI_ERROR_INV_JOB_ID, "Bad job id."},
    {VI_ERROR_NSUP_ATTR, "Attribute not defined for this object."},
    {VI_ERROR_NSUP_ATTR_STATE, "Attribute value invalid or unsupported."},
    {VI_ERROR_ATTR_READONLY, "Attribute is read-only."},
    {VI_ERROR_INV_LOCK_TYPE, "Bad lock type."},
    {VI_ERROR_INV_ACCESS_KEY, "Bad access key."},
    {VI_ERROR_INV_EVENT, "Event type not supported."},
    {VI_ERROR_INV_MECH, "Bad mechanism."},
    {VI_ERROR_HNDLR_NINSTALLED, "No handler installed."},
    {VI_ERROR_INV_HNDLR_REF, "Bad handler reference."},
    {VI_ERROR_INV_CONTEXT, "Bad context."},
    {VI_ERROR_NENABLED, "Event not enabled."},
    {VI_ERROR_ABORT, "Aborted by viTerminate."},
    {VI_ERROR_RAW_WR_PROT_VIOL, "Raw write protocol violation."},
    {VI_ERROR_RAW_RD_PROT_VIOL, "Raw read protocol violation."},
    {VI_ERROR_OUTP_PROT_VIOL, "Device output protocol error."},
    {VI_ERROR_INP_PROT_VIOL, "Device input protocol error."},
    {VI_ERROR_BERR, "Bus error."},
    {VI_ERROR_IN_PROGRESS, "Operation already in progress."},
    {VI_ERROR_INV_SETUP, "Attributes inconsistent for this operation."},
    {VI_ERROR_QUEUE_ERROR, "Cannot queue the operation."},
    {VI_ERROR_ALLOC, "Out of memory or system resources."},
    {VI_ERROR_INV_MASK, "Bad buffer mask."},
    {VI_ERROR_IO, "Unknown I/O error."},
    {VI_ERROR_INV_FMT, "Bad directive in a format, or an answer that does not match it."},
    {VI_ERROR_NSUP_FMT, "Format specifier not supported."},
    {VI_ERROR_LINE_IN_USE, "Trigger line in use."},
    {VI_ERROR_NSUP_MODE, "Mode not supported."},
    {VI_ERROR_SRQ_NOCCURRED, "No service request."},
    {VI_ERROR_RESP_PENDING, "Previous response pending."},
    {VI_ERROR_NLISTENERS, "No listeners (GPIB)."},
    {VI_ERROR_NCIC, "Not controller in charge (GPIB)."},
    {VI_ERROR_NSYS_CNTLR, "Not system controller (GPIB)."},
    {VI_ERROR_NSUP_OPER, "Operation not supported by this object."},
    {VI_ERROR_ASRL_PARITY, "Serial parity error."},
    {VI_ERROR_ASRL_FRAMING, "Serial framing error."},
    {VI_ERROR_ASRL_OVERRUN, "Serial overrun."},
    {VI_ERROR_USER_BUF, "User buffer not accessible."},
    {VI_ERROR_RSRC_BUSY, "Valid resource, not accessible now."},
    {VI_ERROR_INV_PARAMETER, "Bad parameter."},
    {VI_ERROR_INV_PROT, "Protocol not supported; secure connections are not."},
    {VI_ERROR_INV_SIZE, "Bad size."},
    {VI_ERROR_NIMPL_OPER, "Operation not implemented."},
    {VI_ERROR_INV_LENGTH, "Bad length."},
    {VI_ERROR_INV_MODE, "Bad mode."},
    {VI_ERROR_SESN_NLOCKED, "Session holds no lock."},
    {VI_ERROR_LIBRARY_NFOUND, "Needed code library missing."},
    {VI_ERROR_FILE_ACCESS, "Cannot open file."},
    {VI_ERROR_FILE_IO, "File I/O error."},
    {VI_ERROR_NSUP_MECH, "Mechanism not supported for this event."},
    {VI_ERROR_INTF_NUM_NCONFIG, "Interface type valid, that board number not configured."},
    {VI_ERROR_CONN_LOST, "The connection to the instrument is lost."},
    {VI_ERROR_NPERMISSION, "Access denied, credentials refused."},
};

}  // namespace

std::string_view StatusText(ViStatus status) {
  const auto* const row = std::find_if(std::begin(kSentences), std::end(kSentences),
                                       [=](const StatusSentence& each) { return each.status == status; });
  return row == std::end(kSentences) ? std::string_view() : row->text;
}

}  // namespace tvr::visa
