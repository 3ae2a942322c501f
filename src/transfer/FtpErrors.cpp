#include "transfer/FtpErrors.h"

#include <curl/curl.h>

namespace qly::transfer {

int mapCurlError(int curlCode, int replyCode, FtpOp op)
{
    switch (curlCode) {
    case CURLE_OK:
        return 0;
    case CURLE_OPERATION_TIMEDOUT:
        return ErrTimedOut;
    case CURLE_ABORTED_BY_CALLBACK:
        return ErrAborted;
    case CURLE_LOGIN_DENIED:
    case CURLE_COULDNT_CONNECT:
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_FTP_WEIRD_SERVER_REPLY:
    case CURLE_USE_SSL_FAILED:
    case CURLE_SSL_CONNECT_ERROR:
        return ErrLogin;
    case CURLE_PEER_FAILED_VERIFICATION:
        return ErrHostKey;
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_FTP_COULDNT_RETR_FILE:
        return ErrRemoteName;
    case CURLE_REMOTE_ACCESS_DENIED:
        // A directory that could not be entered; a write refused.
        return op == FtpOp::ChangeDir || op == FtpOp::Get || op == FtpOp::Stat ? ErrRemoteName : ErrPermission;
    case CURLE_UPLOAD_FAILED:
    case CURLE_QUOTE_ERROR:
    case CURLE_REMOTE_DISK_FULL:
        return replyCode >= 400 && replyCode < 500 ? ErrConnectionLost : ErrPermission;
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_CANT_GET_HOST:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
    case CURLE_FTP_PORT_FAILED:
    case CURLE_SSH:
        return ErrConnectionLost;
    default:
        return ErrSocket;
    }
}

bool isRetryable(int curlCode, int replyCode)
{
    switch (curlCode) {
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_CANT_GET_HOST:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
    case CURLE_COULDNT_CONNECT:
        return true;
    case CURLE_UPLOAD_FAILED:
    case CURLE_FTP_COULDNT_RETR_FILE:
        return replyCode >= 400 && replyCode < 500;
    default:
        return false;
    }
}

} // namespace qly::transfer
